#include "base/runtime_error.h"
#include "filter/execution.h"
#include "filter/filter_run.h"
#include "filter/fragments.h"

#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

namespace quelvarn {
namespace {

struct Fall
{
    FilterSchritt schritt;
    const char* filterform;
    const char* sqlform;
};

TEST(Fragments, AStepIsOneConditionInTwoForms)
{
    const std::vector<Fall> faelle{
        {{"Projekt", "A100", 0, {}}, "Projekt Like 'A100'", "Projekt Like 'A100'"},
        {{"Titel", "*W_l[lm]e%", 0, {}}, "Titel Like '*W_l[lm]e%'", "Titel Like '*W_l[lm]e%'"},
        {{"Autor", "O'Neill", 0, {}}, "Autor Like 'O''Neill'", "Autor Like 'O''Neill'"},
        {{"Projekt", "", 0, {}}, "", ""},
        {{"Status", "3", 11, {}}, "", ""},
        {{"Erstellt", "03.04.26", 20, {}}, "Erstellt >= #03/04/26 00:00:00#", "Erstellt >= #04/03/26 00:00:00#"},
        {{"Erstellt", "15.11.2026", 21, {}},
         "Erstellt >= #15/11/26 00:00:00# AND Erstellt <= #15/11/26 23:59:59#",
         "Erstellt >= #11/15/26 00:00:00# AND Erstellt <= #11/15/26 23:59:59#"},
        {{"Erstellt", "1.2.26 14:30:00", 22, {}}, "Erstellt <= #01/02/26 23:59:59#", "Erstellt <= #02/01/26 23:59:59#"},
        {{"Geaendert", "15.11.26", 30, {}}, "Geaendert >= #15/11/26 00:00:00#", "Geaendert >= #11/15/26 00:00:00#"},
        {{"Geaendert", "03.04.26", 31, {}},
         "Geaendert >= #03/04/26 00:00:00# AND Geaendert <= #03/04/26 23:59:59#",
         "Geaendert >= #04/03/26 00:00:00# AND Geaendert <= #04/03/26 23:59:59#"},
        {{"Geaendert", "03.04.26", 32, {}}, "Geaendert <= #03/04/26 23:59:59#", "Geaendert <= #04/03/26 23:59:59#"},
        {{"Status", "3,0", 40, {}}, "Status = 3", "Status = 3"},
        {{"Dateiname", "*welle*", 50, {}}, "Dateiname Like '*welle*'", "Dateiname Like '*welle*'"},
        {{"filename", "W:\\A*", 50, {}}, "filename Like 'W:\\A*'", "filename Like 'W:\\A*'"},
        {{"Titel", "100-*", 50, {}}, "DokuBez Like '100-*'", "DokuBez Like '100-*'"},
        {{"Titel", "", 50, {}}, "DokuBez Like ''", "DokuBez Like ''"},
        {{"Dateiname", "a", 60, {}}, "Dateiname Like 'a'", "Dateiname Like 'a'"},
        {{"Dateiname", "", 60, {}}, "", ""},
    };
    for (const Fall& fall : faelle) {
        const Schrittfragment fragment = schrittfragment(fall.schritt, 0);
        EXPECT_EQ(fragment.filterform, fall.filterform);
        EXPECT_EQ(fragment.sqlform, fall.sqlform);
    }
    EXPECT_EQ(schrittfragment({"Dateiname", "a", CodeDatei, {}}, 1).filterform, "") << "known to the first step alone";
    EXPECT_EQ(strukturfragment({"Hauptmerkmal_C", "20.1", CodeErstellt, {}}).filterform, "Hauptmerkmal_C Like '20.1'");
}

TEST(Fragments, WhatIsNoDateOrNumberIsAFault)
{
    EXPECT_THROW(schrittfragment({"Erstellt", "31.02.26", 20, {}}, 0), Laufzeitfehler);
    EXPECT_THROW(schrittfragment({"Geaendert", "", 31, {}}, 0), Laufzeitfehler);
    EXPECT_THROW(schrittfragment({"Status", "drei", 40, {}}, 0), Laufzeitfehler);
}

TEST(Fragments, MainValuesWithBoundsFollowOneAnother)
{
    std::array<Hauptwertgrenzen, ANZAHL_HAUPTWERTE> grenzen{};
    EXPECT_EQ(HauptwertFragmente(grenzen, true), "");
    grenzen[1] = {Decimal::ofUnits(15000), Decimal::ofUnits(20000)};
    EXPECT_EQ(HauptwertFragmente(grenzen, false), "Hauptwert_b >= 1.5 AND Hauptwert_b <= 2");
    grenzen[6] = {Decimal(), Decimal::ofUnits(12342500)};
    EXPECT_EQ(HauptwertFragmente(grenzen, true), " AND Hauptwert_b >= 1.5 AND Hauptwert_b <= 2"
                                                 " AND Hauptwert_g >= 0 AND Hauptwert_g <= 1234.25");
}

// Whatever the values hold, the text of a filter reads as the steps that it was made of.
// The value that a condition asks for, by itself, by a pattern or by both; "?" for a condition of another form.
std::string meant(const sql::Ausdruck& condition)
{
    if (const auto* either = std::get_if<sql::Oder>(&condition.inhalt)) {
        const std::string value = meant(*either->teile.at(0));
        return either->teile.size() == 2 && meant(*either->teile[1]) == value ? value : "?";
    }
    const auto& comparison = std::get<sql::Bedingung>(condition.inhalt);
    const auto& value = std::get<std::string>(comparison.wert);
    const bool plain = comparison.vergleich == sql::Vergleich::Gleich;
    const bool pattern = comparison.vergleich == sql::Vergleich::Like && comparison.wildcards == Wildcards::Star &&
                         value.find('*') != std::string::npos;
    return plain || pattern ? value : "?";
}

TEST(Fragments, EveryValueIsReadAsItWasChosen)
{
    const char* const pieces[]{"a", "'", "''", "' AND ", " OR ", "Titel Like '", "[", "_", "*", "%", " ", ")", "x"};
    std::minstd_rand random(7);
    for (int i = 0; i < 3000; ++i) {
        Filterzustand zustand;
        while (zustand.FilterAnzahl < 3) {
            std::string wert;
            while (wert.empty() || random() % 5 != 0)
                wert += pieces[random() % std::size(pieces)];
            zustand.FilterSchritte[static_cast<std::size_t>(zustand.FilterAnzahl++)] = {"Autor", wert, CodeText, {}};
        }
        const Kettenglied glied = bildeKette(zustand, schrittfragment).back();
        const auto gelesen = filterCondition(glied.sqlform);
        const auto& teile = std::get<sql::Und>(gelesen->inhalt).teile;
        ASSERT_EQ(teile.size(), 3U) << glied.sqlform;
        for (std::size_t n = 0; n < teile.size(); ++n) {
            for (const sql::Ausdruck& ausdruck : {std::cref(*teile[n]), std::cref(*glied.conditions[n])})
                EXPECT_EQ(meant(ausdruck), zustand.FilterSchritte[n].Wert) << glied.sqlform;
        }
    }
    EXPECT_EQ(LikeFragment("Titel", "O'Ring 5''"), "Titel Like 'O''Ring 5'''''");
}

TEST(StatusFilter, FollowsTheTickedBoxesAndClosesGaps)
{
    struct
    {
        const char* haken;
        const char* danach;
        const char* bedingung;
        const char* kurz;
    } const faelle[]{
        {"012345", "012345", "", ""},
        {"", "", "", ""},
        {"2", "2", "( Status = 2)", " = 2"},
        {"0", "0", "( Status = 0)", " = 0"},
        {"13", "123", "( Status >= 1  AND Status <= 3)", " >= 1 und <= 3"},
        {"124", "1234", "( Status >= 1  AND Status <= 4)", " >= 1 und <= 4"},
        {"03", "0123", "( Status >= 0  AND Status <= 3)", " >= 0 und <= 3"},
        {"05", "012345", "( Status >= 0  AND Status <= 5)", " >= 0 und <= 5"},
        {"45", "45", "( Status >= 4  AND Status <= 5)", " >= 4 und <= 5"},
        {"35", "345", "( Status >= 3  AND Status <= 3)", " >= 3 und <= 5"},
        {"345", "345", "( Status >= 3  AND Status <= 3)", " >= 3 und <= 5"},
    };
    for (const auto& fall : faelle) {
        FilterState filter;
        auto& haken = filter.typen[2].ChFilterStat;
        for (const char* ziffer = fall.haken; *ziffer; ++ziffer)
            haken[static_cast<std::size_t>(*ziffer - '0')] = true;
        BuildStatusFilter(filter, 2);
        std::string danach;
        for (std::size_t status = 0; status < haken.size(); ++status)
            danach += haken[status] ? std::to_string(status) : "";
        EXPECT_EQ(danach, fall.danach);
        const auto mitKopf = [&](const std::string& kopf) { return *fall.bedingung ? kopf + fall.bedingung : ""; };
        EXPECT_EQ(filter.status.StatusFilter, mitKopf(" "));
        EXPECT_EQ(filter.status.StatusFilterWhere, mitKopf(" WHERE "));
        EXPECT_EQ(filter.status.StatusFilterAnd, mitKopf(" AND "));
        EXPECT_EQ(filter.status.kurz, fall.kurz);
        EXPECT_EQ(filter.status.legende, *fall.kurz ? std::string("             Status") + fall.kurz : "");
    }
}

} // namespace
} // namespace quelvarn
