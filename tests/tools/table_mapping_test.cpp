#include "base/date_time.h"
#include "tools/import/table_mapping.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace quelvarn::tools {
namespace {

using namespace std::string_view_literals;

Zelle zelle(std::int64_t zahl)
{
    return {.art = Zellart::Ganzzahl, .ganzzahl = zahl, .gleitkomma = 0, .text = {}};
}
Zelle zelle(double zahl, Zellart art = Zellart::Gleitkomma)
{
    return {.art = art, .ganzzahl = 0, .gleitkomma = zahl, .text = {}};
}
Zelle zelle(std::string_view text)
{
    return {.art = Zellart::Text, .ganzzahl = 0, .gleitkomma = 0, .text = text};
}

TEST(Umwandlung, KeepsWhatFitsAndNamesWhatDoesNot)
{
    const Zeitpunkt mittag = Zeitpunkt::aus({1899, 12, 29, 12, 0, 0});
    const struct
    {
        Zelle zelle;
        FeldTyp typ;
        Value erwartet;
        std::string_view grund;
    } faelle[] = {
        {{}, FeldTyp::Text, {}, ""},
        {zelle(""sv), FeldTyp::Text, std::string(), ""}, // Not Null.
        {zelle("a\0b"sv), FeldTyp::Text, std::string("ab"), ""},
        {zelle(std::int64_t{-1}), FeldTyp::Ganzzahl, std::int64_t{-1}, ""},
        {zelle(std::int64_t{3}), FeldTyp::Gleitkomma, 3.0, ""},
        {zelle(std::int64_t{3}), FeldTyp::Text, std::string("3"), ""},
        {zelle(3.0), FeldTyp::Ganzzahl, std::int64_t{3}, ""},
        {zelle(3.5), FeldTyp::Ganzzahl, {}, "keine ganze Zahl"},
        {zelle(3.5), FeldTyp::Text, std::string("3,5"), ""},
        {zelle(std::nan("")), FeldTyp::Gleitkomma, {}, "keine Zahl"},
        {zelle("1,5"sv), FeldTyp::Gleitkomma, 1.5, ""},
        {zelle(" "sv), FeldTyp::Gleitkomma, {}, ""},
        {zelle("drei"sv), FeldTyp::Ganzzahl, {}, "keine Zahl"},
        // The time of day counts forward on a day before the first one, too.
        {zelle(-1.5, Zellart::Datum), FeldTyp::Datum, mittag, ""},
        {zelle(-1.5, Zellart::Datum), FeldTyp::Text, std::string("29.12.1899 12:00:00"), ""},
        {zelle(3e6, Zellart::Datum), FeldTyp::Datum, {}, "kein Datum von 100 bis 9999"},
        {zelle(-std::numeric_limits<double>::infinity(), Zellart::Datum),
         FeldTyp::Datum,
         {},
         "kein Datum von 100 bis 9999"},
        {zelle("29.12.1899 12:00"sv), FeldTyp::Datum, mittag, ""},
        {zelle("morgen"sv), FeldTyp::Datum, {}, "kein Datum von 100 bis 9999"},
    };
    for (const auto& fall : faelle) {
        std::string_view grund;
        EXPECT_EQ(alsWert(fall.zelle, fall.typ, grund), fall.erwartet) << fall.zelle.text << fall.zelle.gleitkomma;
        EXPECT_EQ(grund, fall.grund) << fall.zelle.text << fall.zelle.gleitkomma;
    }
}

TEST(Tabellenabbildung, MatchesColumnsInAnyCaseAndKeepsTheOthers)
{
    const Quelltabelle quelle{"partTABELLE",
                              {{"ID", Spaltenart::Ganzzahl},
                               {"REVBEZ", Spaltenart::Text},
                               {"dokubez", Spaltenart::Text},
                               {"Gespeichert", Spaltenart::Text},
                               {"Bild", Spaltenart::Fremd}},
                              0};
    const Tabellenabbildung ergebnis = bildeAb(quelle, *findTabelle("PartTabelle"));
    EXPECT_EQ(ergebnis.ziel.name, "PartTabelle");
    EXPECT_EQ(ergebnis.ziel.spalten[0], (Spalte{"DokuBez", FeldTyp::Text}));
    EXPECT_EQ(ergebnis.quelle[0], 2U);
    EXPECT_EQ(ergebnis.quelle[1], 1U);
    const auto gespeichert = std::ranges::find(ergebnis.ziel.spalten, "Gespeichert", &Spalte::name);
    EXPECT_EQ(gespeichert->typ, FeldTyp::Text);
    EXPECT_EQ(ergebnis.ziel.spalten.back(), (Spalte{"ID", FeldTyp::Ganzzahl}));
    EXPECT_EQ(ergebnis.zusaetzliche, std::vector<std::string>{"ID"});
    EXPECT_EQ(ergebnis.nichtGenommen, std::vector<std::size_t>{4});
    EXPECT_NE(std::ranges::find(ergebnis.fehlende, "filename"), ergebnis.fehlende.end());
}

TEST(Tabellenabbildung, LeavesAnAddressTableItsShape)
{
    const Quelltabelle breit{
        "Adresstabelle",
        {{"Kennung", Spaltenart::Text}, {"Anrede E-Mail", Spaltenart::Text}, {"Zeichnung_Art1", Spaltenart::Text}},
        0};
    const std::vector<Spalte> spalten{
        {"Kennung", FeldTyp::Text}, {"Anrede E-Mail", FeldTyp::Text}, {"Zeichnung_Art1", FeldTyp::Text}};
    EXPECT_EQ(bildeAb(breit, *findTabelle("Adresstabelle")).ziel.spalten, spalten);
}

TEST(Einwand, NamesWhatMakesAFileNoRegister)
{
    const Quelltabelle ini{"INI",
                           {{"Feld1", Spaltenart::Text},
                            {"Feld2", Spaltenart::Text},
                            {"Feld3", Spaltenart::Text},
                            {"Feld4", Spaltenart::Text},
                            {"Feld5", Spaltenart::Text}},
                           0};
    const Quelltabelle teile{"PartTabelle",
                             {{"DokuBez", Spaltenart::Text},
                              {"RevBez", Spaltenart::Text},
                              {"filename", Spaltenart::Text},
                              {"Status", Spaltenart::Ganzzahl}},
                             0};
    EXPECT_EQ(findEinwand({{ini, teile}, {}}), std::nullopt);
    EXPECT_TRUE(findEinwand({{teile}, {}}));
    EXPECT_TRUE(findEinwand({{ini}, {"Kunden"}}));
    EXPECT_TRUE(findEinwand({{{"Ini", {{"Feld1", Spaltenart::Text}}, 0}, teile}, {}}));
}

} // namespace
} // namespace quelvarn::tools
