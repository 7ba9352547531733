#include "database/connection.h"
#include "database/recordset.h"
#include "recordset_reference.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace quelvarn;
using referenz::FELDER;

namespace {

constexpr std::size_t ZEILEN = 400;
constexpr int BEDINGUNGEN = 400;

std::vector<referenz::Zeile> zufallszeilen(referenz::Zufall& zufall)
{
    std::vector<referenz::Zeile> zeilen;
    for (std::size_t i = 0; i < ZEILEN; ++i)
        zeilen.push_back(zufall.zeile());
    return zeilen;
}

std::vector<std::size_t> erwartete(const std::vector<referenz::Zeile>& zeilen, const referenz::Bedingung& bedingung)
{
    std::vector<std::size_t> nummern;
    for (std::size_t i = 0; i < zeilen.size(); ++i)
        if (bedingung.trifft(zeilen[i]) == referenz::Urteil(true))
            nummern.push_back(i);
    return nummern;
}

std::vector<std::size_t> nummern(const Recordset& rs)
{
    std::vector<std::size_t> ergebnis;
    for (std::size_t i = 0; i < rs.RecordCount(); ++i)
        ergebnis.push_back(static_cast<std::size_t>(alsGanzzahl(rs.Zelle(i, "Id"))));
    std::sort(ergebnis.begin(), ergebnis.end());
    return ergebnis;
}

TEST(RecordsetFilter, KeepsExactlyTheRowsThatMeetTheCondition)
{
    referenz::Zufall zufall(1);
    const auto zeilen = zufallszeilen(zufall);
    Recordset rs;
    rs.FeldAnhaengen("Id", FeldTyp::Ganzzahl);
    for (const auto& feld : FELDER)
        rs.FeldAnhaengen(feld.name, feld.typ);
    rs.Open();
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        rs.AddNew();
        rs.setzeFeld("Id", static_cast<std::int64_t>(i));
        for (std::size_t feld = 0; feld < FELDER.size(); ++feld)
            rs.setzeFeld(FELDER[feld].name, zeilen[i][feld]);
    }
    rs.MoveFirst();
    std::size_t treffer = 0;
    for (int i = 0; i < BEDINGUNGEN; ++i) {
        const auto bedingung = zufall.bedingung(3);
        rs.Filter(bedingung.alsFilter);
        const auto soll = erwartete(zeilen, bedingung);
        ASSERT_EQ(nummern(rs), soll) << bedingung.alsFilter;
        treffer += soll.size();
    }
    EXPECT_GT(treffer, 1000u);
}

} // namespace
