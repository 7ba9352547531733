#include "register/detail_lists.h"

#include "base/date_time.h"
#include "base/number_format.h"
#include "database/sql/conditions.h"
#include "documents/document_record.h"
#include "platform/files.h"
#include "register/text_list.h"
#include "session/session_state.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <optional>

namespace quelvarn {
namespace {

constexpr std::string_view ABSATZ = "      ";     // Before the letter of a feature.
constexpr std::size_t ERSTES_STRUKTURMERKMAL = 2; // Hauptmerkmal_C
constexpr int NACHKOMMASTELLEN = 3;

char buchstabe(char erster, std::size_t nummer)
{
    return static_cast<char>(erster + static_cast<int>(nummer));
}

std::string datumOderLeer(const Value& datum)
{
    return istNull(datum) ? std::string() : formatDatum(alsDatum(datum));
}

std::string merkmalname(const SessionState& session, std::size_t nummer)
{
    const auto name = session.labels.Bezeichnungen.find(fmt::format("hauptmerkmal {}", buchstabe('a', nummer)));
    return name == session.labels.Bezeichnungen.end() ? std::string() : name->second;
}

void trenne(Textliste& liste)
{
    liste.zeile({{"Bezeichn", "#######"},
                 {"Inhalt", "############################"},
                 {"Benennung", "##########################"}});
}

} // namespace

Recordset InfoRevision(Connection& verbindung, std::string_view tabelle, std::string_view DokuBez, RevErstBearb ansicht)
{
    const bool erstellt = ansicht == RevErstBearb::Erstellt;
    const std::string_view datum = erstellt ? "Erstellt" : "Geaendert";
    const std::string_view name = erstellt ? "Autor" : "Bearbeiter";
    Recordset zeilen;
    zeilen.Open(
        sql::Query(tabelle)
            .columns({"RevBez", datum, name, "Aenderung"})
            .distinct()
            .where(sql::all(sql::equal("DokuBez", DokuBez), sql::compare("Aenderung", sql::Vergleich::NotLike, "")))
            .sortedBy("RevBez"),
        verbindung);
    Textliste liste{"RevBez", "Geaendert", "Bearbeiter", "Aenderung"};
    for (; !zeilen.Eof(); zeilen.MoveNext())
        liste.zeile({{"RevBez", zeilen.Text("RevBez")},
                     {"Geaendert", datumOderLeer(zeilen.Feld(datum))},
                     {"Bearbeiter", zeilen.Text(name)},
                     {"Aenderung", zeilen.Text("Aenderung")}});
    return liste.fertig();
}

std::span<const std::string> templateBranch(const DokuRecord& record)
{
    const auto features = std::span(record.Hauptmerkmal).subspan(ERSTES_STRUKTURMERKMAL);
    const auto behind = std::ranges::find(features, std::string());
    return features.first(static_cast<std::size_t>(behind - features.begin()));
}

Recordset hauptmerkmalListe(const DokuRecord& record, const SessionState& session, bool mitVorlage)
{
    Textliste liste{"Bezeichn", "Inhalt", "Benennung"};
    const std::size_t ebene = mitVorlage ? templateBranch(record).size() : 0;
    for (std::size_t i = 0; i < record.Hauptmerkmal.size(); ++i) {
        if (i == ERSTES_STRUKTURMERKMAL)
            trenne(liste);
        const bool vorlage = ebene > 0 && i == ERSTES_STRUKTURMERKMAL + ebene - 1;
        liste.zeile({{"Bezeichn", fmt::format("{}{}", ABSATZ, buchstabe('A', i))},
                     {"Inhalt", record.Hauptmerkmal[i]},
                     {"Benennung", vorlage ? "Vorlage" : merkmalname(session, i)}});
    }
    trenne(liste);
    for (std::size_t i = 0; i < record.Hauptwert.size(); ++i)
        liste.zeile({{"Bezeichn", fmt::format("{}{}", ABSATZ, buchstabe('a', i))},
                     {"Inhalt", formatKomma(record.Hauptwert[i], NACHKOMMASTELLEN)},
                     {"Benennung", record.Alias[i]}});
    return liste.fertig();
}

Recordset zusDokuListe(Connection& verbindung, const Dateien& dateien, std::string_view filename)
{
    constexpr std::string_view MITSENDEN = "/J";
    Recordset zeilen;
    zeilen.Open(sql::Query("VerbindungPartZusDoku")
                    .columns({"ZusDokuDateiname", "ZusDokufilename"})
                    .distinct()
                    .where(sql::equal("Dokufilename", filename))
                    .sortedBy("ZusDokuDateiname")
                    .sortedBy("ZusDokufilename"),
                verbindung);
    Textliste liste{"ZusDokuDatum", "ZusDokuDateiname", "ZusDokuSenden", "ZusDokufilename"};
    liste.mit("ZusDokuCreated", FeldTyp::Datum).mit("ZusDokuFileSize", FeldTyp::Ganzzahl);
    for (; !zeilen.Eof(); zeilen.MoveNext()) {
        std::string pfad = zeilen.Text("ZusDokufilename");
        const bool mitsenden = pfad.ends_with(MITSENDEN);
        if (mitsenden)
            pfad.resize(pfad.size() - MITSENDEN.size());
        const std::optional<Dateiattribute> datei = dateien.attribute(pfad);
        liste.zeile({{"ZusDokuDatum", datei ? formatDatumUhrzeit(datei->geaendert) : std::string()},
                     {"ZusDokuDateiname", zeilen.Text("ZusDokuDateiname")},
                     {"ZusDokuSenden", mitsenden ? "Ja" : "Nein"},
                     {"ZusDokufilename", pfad},
                     {"ZusDokuCreated", datei ? Value(datei->erstellt) : Value()},
                     {"ZusDokuFileSize", datei ? Value(datei->groesse) : Value()}});
    }
    return liste.fertig();
}

std::string zusDokuInfo(const Recordset& zeile)
{
    if (zeile.Bof() || zeile.Eof() || istNull(zeile.Feld("ZusDokuFileSize")))
        return {};
    return fmt::format("{}   {} Byte", zeile.Text("ZusDokuDatum"),
                       formatGanzzahl(alsGanzzahl(zeile.Feld("ZusDokuFileSize"))));
}

} // namespace quelvarn
