#include "database/schema.h"
#include "database/value.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

namespace quelvarn {
namespace {

const Zeitpunkt maerz = Zeitpunkt::aus({2006, 3, 7, 13, 5, 0});

TEST(Value, ConvertsAsTheDatabaseDoes)
{
    struct Fall
    {
        Value wert;
        std::string text;
        double zahl;
        std::int64_t ganzzahl;
        bool numerisch;
        Zeitpunkt datum;
    };
    const Fall faelle[] = {
        {{}, "", 0, 0, false, {}},
        {std::int64_t{-7}, "-7", -7, -7, true, Zeitpunkt::ausTagen(-7)},
        {2.5, "2,5", 2.5, 2, true, Zeitpunkt::ausTagen(2.5)},
        {3.5, "3,5", 3.5, 4, true, Zeitpunkt::ausTagen(3.5)},
        {1e300, "1E+300", 1e300, std::numeric_limits<std::int64_t>::max(), true, {}},
        {"", "", 0, 0, false, {}},
        {" 1.234,5 ", " 1.234,5 ", 1234.5, 1234, true, {}},
        {"Welle", "Welle", 0, 0, false, {}},
        {"07.03.06 13:05", "07.03.06 13:05", 0, 0, false, maerz},
        {"2006-03-07 13:05:00", "2006-03-07 13:05:00", 0, 0, false, maerz},
        {maerz, "07.03.2006 13:05:00", maerz.alsTage(), 38784, false, maerz},
    };
    for (const Fall& fall : faelle) {
        EXPECT_EQ(alsText(fall.wert), fall.text);
        EXPECT_DOUBLE_EQ(alsZahl(fall.wert), fall.zahl) << fall.text;
        EXPECT_EQ(alsGanzzahl(fall.wert), fall.ganzzahl) << fall.text;
        EXPECT_EQ(istNumerisch(fall.wert), fall.numerisch) << fall.text;
        EXPECT_EQ(alsDatum(fall.wert), fall.datum) << fall.text;
    }
}

TEST(Registerschema, EveryIndexNamesColumnsOfItsTable)
{
    for (const Tabellenschema& tabelle : registerschema())
        for (const auto& index : tabelle.indexe)
            for (const IndexSpalte& gesucht : index)
                EXPECT_TRUE(std::ranges::count(tabelle.spalten, gesucht.name, &Spalte::name) == 1)
                    << tabelle.name << "." << gesucht.name;
    EXPECT_EQ(findTabelle("drafttabelle")->spalten.size(), findTabelle("PartTabelle")->spalten.size() + 1);
    EXPECT_EQ(findTabelle("Fehlt"), nullptr);
}

} // namespace
} // namespace quelvarn
