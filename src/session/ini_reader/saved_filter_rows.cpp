#include "base/collation.h"
#include "database/sql/conditions.h"
#include "session/ini_reader/start_run.h"

#include <algorithm>

namespace quelvarn {

namespace {

Recordset leereFilterliste()
{
    Recordset liste;
    liste.FeldAnhaengen("Filtername", FeldTyp::Text);
    liste.FeldAnhaengen("Filterstring", FeldTyp::Text);
    liste.Open();
    return liste;
}

} // namespace

void leseGespeicherteFilter(Startlauf& lauf)
{
    auto& listen = lauf.session.pages.GespeicherteFilter;
    std::generate(listen.begin(), listen.end(), leereFilterliste);

    Recordset zeilen = lauf.ini.lese(sql::Query("Ini")
                                         .columns({"Feld3", "Feld4", "Feld5"})
                                         .where(iniRows(lauf.session.user.Anwender, "Filterwerte")));
    for (; !zeilen.Eof(); zeilen.MoveNext()) {
        const std::string schluessel = textOderLeer(zeilen, "Feld3");
        const auto typ = std::find_if(DOKUTYPEN.begin(), DOKUTYPEN.end(), [&](const DokuTyp& kandidat) {
            return equalText(kandidat.schluessel, schluessel);
        });
        if (typ == DOKUTYPEN.end())
            continue;
        Recordset& liste = listen[static_cast<std::size_t>(typ->tab)];
        liste.AddNew();
        liste.setzeFeld("Filtername", zeilen.Feld("Feld4"));
        liste.setzeFeld("Filterstring", zeilen.Feld("Feld5"));
        liste.Update();
    }
    for (Recordset& liste : listen)
        if (!liste.leer())
            liste.MoveFirst();
}

} // namespace quelvarn
