#include "database/document_types.h"
#include "fakes/temp_folder.h"
#include "tools/command_call.h"

#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace quelvarn::test {
namespace {

std::int64_t anzahl(const std::string& ziel, std::string_view tabelle, const std::string& bedingung = {})
{
    return zeilen(ziel, "Select Count(*) From " + std::string(tabelle) + bedingung).at(1).at(0);
}

TEST(Musterregister, HasExactlyTheWantedNumberOfDocumentsAndNoFault)
{
    TempFolder ordner;
    for (const int dokumente : {1, 13, 500, 2000}) {
        const std::string ziel = pfad(ordner / std::to_string(dokumente));
        ASSERT_EQ(rufe({"sample", ziel, "--documents", std::to_string(dokumente)}).ergebnis, tools::GUT);
        std::int64_t summe = 0;
        for (const DokuTyp& typ : DOKUTYPEN)
            summe += anzahl(ziel, typ.tabelle);
        EXPECT_EQ(summe, dokumente);
        const Aufruf pruefung = rufe({"check", ziel, "--streng"});
        EXPECT_EQ(pruefung.ergebnis, tools::GUT) << pruefung.aus;
    }
}

TEST(Musterregister, IsTheSameForTheSameSeed)
{
    TempFolder ordner;
    const auto inhalt = [&](const std::string& name, const std::string& start) {
        const std::string ziel = pfad(ordner / name);
        EXPECT_EQ(rufe({"sample", ziel, "--documents", "600", "--seed", start}).ergebnis, tools::GUT);
        std::string text;
        for (const auto& tabelle : {"PartTabelle", "DraftTabelle", "ZusBauPart", "PartTabelleBenutzDef", "CheckInOut"})
            text += rufe({"query", ziel, std::string("Select * From ") + tabelle, "--json"}).aus;
        return text;
    };
    const std::string erstes = inhalt("a", "7");
    EXPECT_EQ(inhalt("b", "7"), erstes);
    EXPECT_NE(inhalt("c", "8"), erstes);
}

TEST(Musterregister, OffersSomethingForEveryPageOfTheProgram)
{
    TempFolder ordner;
    const std::string ziel = pfad(ordner / "muster");
    ASSERT_EQ(rufe({"sample", ziel}).ergebnis, tools::GUT);
    const std::pair<std::string, std::string> gesucht[] = {
        {"PartTabelle", " WHERE Titel LIKE '%''%'"},
        {"PartTabelle", " WHERE Bearbeiter Is Null"},
        {"PartTabelle", " WHERE Bearbeiter LIKE ''"},
        {"PartTabelle", " WHERE RevBez = 'C'"},
        {"DraftTabelle",
         " WHERE Kategorie = 'QV_Vorlage' AND Hauptmerkmal_C = 'Wellen und Achsen' AND Hauptmerkmal_D LIKE ''"},
        {"VerbindungPartZusDoku", " WHERE ZusDokufilename LIKE '%/J'"},
        {"VerbindungDraftPart", " WHERE DokuBezDraft = 'NT-Übersicht'"},
        {"PartTabelleBenutzDef", " WHERE Wert LIKE '%VersandM%'"},
        {"Ini", " WHERE Feld1 = 'Meier' AND Feld2 = 'Favoriten'"},
        {"Ini", " WHERE Feld1 = 'Schröder' AND Feld2 = 'Filterwerte'"},
        {"CheckInOut", " WHERE ADNutzer = 91 AND RechnerNutzer = 'Meier'"},
        {"Adresstabelle", " WHERE Kennung = 'Signatur, Meier'"},
    };
    for (const auto& [tabelle, bedingung] : gesucht)
        EXPECT_GT(anzahl(ziel, tabelle, bedingung), 0) << tabelle << bedingung;
    for (const DokuTyp& typ : DOKUTYPEN)
        EXPECT_GT(anzahl(ziel, typ.tabelle), 20) << typ.tabelle;
    for (int status = 0; status < ANZAHL_STATUS; ++status)
        EXPECT_GT(anzahl(ziel, "PartTabelle", " WHERE Status = " + std::to_string(status)), 5) << status;
}

TEST(Musterregister, WritesFilesWhereTheDocumentsAre)
{
    TempFolder ordner;
    const std::string ziel = pfad(ordner / "muster");
    ASSERT_EQ(rufe({"sample", ziel, "--documents", "300", "--files", pfad(ordner / "w")}).ergebnis, tools::GUT);
    const auto systempfad = [&](std::string pfad) {
        std::ranges::replace(pfad, '\\', '/');
        return ordner / ("w/" + pfad.substr(3));
    };
    std::size_t pdfs = 0;
    for (const auto& zeile : zeilen(ziel, "Select filename From DraftTabelle WHERE filename LIKE 'W:%'")) {
        if (zeile[0] == "filename")
            continue;
        auto datei = systempfad(zeile[0]);
        EXPECT_TRUE(exists(datei)) << datei;
        pdfs += exists(datei.replace_extension("pdf")) ? 1 : 0;
    }
    EXPECT_GT(pdfs, 20U);
    for (const auto& zeile : zeilen(ziel, "Select filename From TIFFTabelle"))
        EXPECT_TRUE(zeile[0] == "filename" || exists(systempfad(zeile[0]))) << zeile[0];
}

} // namespace
} // namespace quelvarn::test
