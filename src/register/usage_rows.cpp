#include "register/usage_rows.h"

#include "base/text.h"
#include "base/windows_path.h"
#include "database/connection.h"
#include "database/document_types.h"
#include "database/sql/parser.h"
#include "register/document_record.h"
#include "register/usage_kinds.h"

#include <algorithm>
#include <fmt/format.h>
#include <utility>

namespace quelvarn {
namespace {

std::string inHochkommas(std::string_view wert)
{
    return "'" + replaceAll(wert, "'", "''") + "'";
}

std::string gleich(std::string_view spalte, std::string_view wert)
{
    return fmt::format("{} = {}", spalte, inHochkommas(wert));
}

// Reads one row at most.
bool gibtEs(Connection& verbindung, std::string_view tabelle, std::string_view spalte, const std::string& bedingung)
{
    sql::Select select;
    select.tabelle = tabelle;
    select.spalten = {std::string(spalte)};
    select.where = sql::parseBedingung(bedingung, sql::Datumsfolge::MonatZuerst);
    return verbindung.engine().lese(select, MitSchluessel::Nein, 1)->next();
}

// A document without a path is used nowhere.
std::string bedingung(const Verbindungstabelle& tabelle, const DokuRecord& record, std::string_view pfad)
{
    if (!tabelle.pfad.empty())
        return pfad.empty() ? std::string() : gleich(tabelle.pfad, pfad);
    return gleich(tabelle.DokuBez, record.DokuBez) + " AND " + gleich(tabelle.RevBez, record.RevBez);
}

bool istTeil(int dokuArt)
{
    return dokuArt == 1 || dokuArt == 4 || dokuArt == 6;
}

const Verbindungstabelle& quelle(const Verwendungsart& art, const DokuRecord& record)
{
    const bool zweite = art.quellwahl == Quellwahl::NachTyp && !istTeil(record.DokuArt);
    return art.tabellen[zweite ? 1 : 0];
}

Recordset oeffne(Connection& verbindung, const Verbindungstabelle& tabelle, const std::string& bedingung)
{
    Recordset zeilen;
    if (!bedingung.empty())
        zeilen.Open(fmt::format("SELECT DISTINCT {0} FROM {1} WHERE {2} ORDER BY {0}", tabelle.spalten, tabelle.tabelle,
                                bedingung),
                    verbindung);
    return zeilen;
}

// One list of the paths of several tables, with the names of the files.
Recordset vereinigt(Connection& verbindung, const Verwendungsart& art, const DokuRecord& record, std::string_view pfad)
{
    Recordset alle;
    alle.FeldAnhaengen(art.felder.Dateiname, FeldTyp::Text);
    alle.FeldAnhaengen(art.felder.filename, FeldTyp::Text);
    alle.Open();
    for (const Verbindungstabelle& tabelle : art.tabellen) {
        Recordset teil = oeffne(verbindung, tabelle, bedingung(tabelle, record, pfad));
        for (; !teil.Eof(); teil.MoveNext()) {
            std::string filename = teil.Text(tabelle.spalten);
            alle.AddNew();
            alle.setzeFeld(art.felder.Dateiname, DateiName(filename));
            alle.setzeFeld(art.felder.filename, std::move(filename));
        }
    }
    if (!alle.leer()) {
        alle.Update();
        alle.MoveFirst();
    }
    return alle;
}

bool lese(Connection& verbindung, const DokuTyp& typ, const std::string& bedingung, AllgemeineSeite& details)
{
    Recordset zeile;
    zeile.Open(fmt::format("SELECT * FROM {} WHERE {}", typ.tabelle, bedingung), verbindung);
    if (zeile.leer())
        return false;
    details = allgemeineSeite(leseDokuRecord(zeile, typ), typ, false, true);
    return true;
}

const DokuTyp& typVon(std::string_view schluessel)
{
    return *std::ranges::find(DOKUTYPEN, schluessel, &DokuTyp::schluessel);
}

} // namespace

bool gibtEsVerwendung(Connection& verbindung, const Verwendungsart& art, const DokuRecord& record,
                      std::string_view pfad)
{
    const Verbindungstabelle& tabelle = quelle(art, record);
    const std::string wo = bedingung(tabelle, record, pfad);
    return !wo.empty() &&
           gibtEs(verbindung, tabelle.tabelle, tabelle.pfad.empty() ? tabelle.DokuBez : tabelle.pfad, wo);
}

Recordset verwendungszeilen(Connection& verbindung, const Verwendungsart& art, const DokuRecord& record,
                            std::string_view pfad)
{
    if (art.quellwahl == Quellwahl::Alle)
        return vereinigt(verbindung, art, record, pfad);
    const Verbindungstabelle& tabelle = quelle(art, record);
    return oeffne(verbindung, tabelle, bedingung(tabelle, record, pfad));
}

Verwendungsdokument dokumentZu(Connection& verbindung, const Verwendungsart& art, const Recordset& zeile)
{
    Verwendungsdokument dokument;
    if (!art.bestandteile()) {
        dokument.typ = &typVon(art.zieltyp);
        lese(verbindung, *dokument.typ,
             gleich("DokuBez", zeile.Text(art.felder.DokuBez)) + " AND " +
                 gleich("RevBez", zeile.Text(art.felder.RevBez)),
             dokument.details);
        return dokument;
    }
    const std::string filename = zeile.Text(art.felder.filename);
    const std::string bedingung = gleich("filename", filename);
    dokument.typ = findTypZurDatei(filename);
    const DokuTyp& erste = dokument.typ ? *dokument.typ : typVon("Draft");
    if (lese(verbindung, erste, bedingung, dokument.details))
        return dokument;
    for (const DokuTyp& typ : DOKUTYPEN) {
        if (typ.sondertabelle == 0 || !lese(verbindung, typ, bedingung, dokument.details))
            continue;
        dokument.typ = &typ;
        dokument.SondertabelleNr = typ.sondertabelle;
        break;
    }
    return dokument;
}

std::optional<Dokumentname> findDokument(Connection& verbindung, const DokuTyp& typ, std::string_view filename)
{
    sql::Select select;
    select.tabelle = typ.tabelle;
    select.spalten = {"DokuBez", "RevBez"};
    select.where = sql::parseBedingung(gleich("filename", filename));
    const auto zeile = verbindung.engine().lese(select, MitSchluessel::Nein, 1);
    if (!zeile->next())
        return std::nullopt;
    return Dokumentname{std::string(zeile->text(0)), std::string(zeile->text(1))};
}

const DokuTyp* findTypZurDatei(std::string_view filename)
{
    const int code = dateiTypCode(filename);
    const auto typ = std::ranges::find(DOKUTYPEN, code, &DokuTyp::dokuArt);
    return code == 0 || typ == DOKUTYPEN.end() ? nullptr : &*typ;
}

bool istSichtbar(Connection& verbindung, const DokuTyp& typ, std::string_view filename, std::string_view AndStatus)
{
    return AndStatus.empty() ||
           gibtEs(verbindung, typ.tabelle, "filename", gleich("filename", filename) + std::string(AndStatus));
}

} // namespace quelvarn
