#include "register/relation_rows.h"

#include "base/text.h"
#include "base/windows_path.h"
#include "database/connection.h"
#include "database/document_types.h"
#include "database/sql/conditions.h"
#include "documents/document_record.h"
#include "register/document_facts.h"
#include "register/document_questions.h"
#include "register/relation_kinds.h"

#include <algorithm>
#include <utility>

namespace quelvarn {
namespace {

// A document without a path is used nowhere: null.
sql::AusdruckZeiger bedingung(const Verbindungstabelle& tabelle, const DokuRecord& record, std::string_view pfad)
{
    if (!tabelle.pfad.empty())
        return pfad.empty() ? nullptr : sql::equal(tabelle.pfad, pfad);
    return sql::all(sql::equal(tabelle.DokuBez, record.DokuBez), sql::equal(tabelle.RevBez, record.RevBez));
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

Recordset oeffne(Connection& verbindung, const Verbindungstabelle& tabelle, sql::AusdruckZeiger bedingung)
{
    Recordset zeilen;
    if (!bedingung)
        return zeilen;
    sql::Select select = sql::Query(tabelle.tabelle).distinct().where(std::move(bedingung));
    for (const std::string& spalte : split(tabelle.spalten, ',')) {
        select.spalten.emplace_back(trim(spalte));
        select.orderBy.push_back({select.spalten.back(), false});
    }
    zeilen.Open(std::move(select), verbindung);
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

bool lese(Connection& verbindung, const DokuTyp& typ, sql::AusdruckZeiger bedingung, AllgemeineSeite& details)
{
    Recordset zeile;
    zeile.Open(sql::Query(typ.tabelle).where(std::move(bedingung)), verbindung);
    if (zeile.leer())
        return false;
    details = allgemeineSeite(leseDokuRecord(zeile, typ), {}, typ, false, true);
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
    sql::AusdruckZeiger wo = bedingung(tabelle, record, pfad);
    return wo &&
           rowExists(verbindung, tabelle.tabelle, tabelle.pfad.empty() ? tabelle.DokuBez : tabelle.pfad, std::move(wo));
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
             sql::all(sql::equal("DokuBez", zeile.Text(art.felder.DokuBez)),
                      sql::equal("RevBez", zeile.Text(art.felder.RevBez))),
             dokument.details);
        return dokument;
    }
    const std::string filename = zeile.Text(art.felder.filename);
    dokument.typ = findTypZurDatei(filename);
    const DokuTyp& erste = dokument.typ ? *dokument.typ : typVon("Draft");
    if (lese(verbindung, erste, sql::equal("filename", filename), dokument.details))
        return dokument;
    for (const DokuTyp& typ : DOKUTYPEN) {
        if (typ.sondertabelle == 0 || !lese(verbindung, typ, sql::equal("filename", filename), dokument.details))
            continue;
        dokument.typ = &typ;
        dokument.SondertabelleNr = typ.sondertabelle;
        break;
    }
    return dokument;
}

std::optional<Dokumentname> findDokument(Connection& verbindung, const DokuTyp& typ, std::string_view filename)
{
    std::vector<Dokumentname> names = documentsWithPath(verbindung, typ, filename);
    return names.empty() ? std::nullopt : std::optional(std::move(names.front()));
}

std::vector<Dokumentname> documentsWithPath(Connection& verbindung, const DokuTyp& typ, std::string_view filename)
{
    std::vector<Dokumentname> names;
    const auto rows = verbindung.engine().lese(
        sql::Query(typ.tabelle).columns({"DokuBez", "RevBez"}).where(sql::equal("filename", filename)),
        MitSchluessel::Nein);
    while (rows->next())
        names.push_back({std::string(rows->text(0)), std::string(rows->text(1))});
    return names;
}

const DokuTyp* findTypZurDatei(std::string_view filename)
{
    const int code = dateiTypCode(filename);
    const auto typ = std::ranges::find(DOKUTYPEN, code, &DokuTyp::dokuArt);
    return code == 0 || typ == DOKUTYPEN.end() ? nullptr : &*typ;
}

bool istSichtbar(Connection& verbindung, const DokuTyp& typ, std::string_view filename, std::string_view WhereStatus)
{
    return WhereStatus.empty() || rowExists(verbindung, typ.tabelle, "filename",
                                            sql::all(sql::equal("filename", filename), sql::statusScope(WhereStatus)));
}

} // namespace quelvarn
