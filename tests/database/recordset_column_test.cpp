#include "base/collation.h"
#include "database/column.h"
#include "database/column_search.h"
#include "database/recordset_keys.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numeric>
#include <random>

using namespace quelvarn;
using testing::ElementsAre;

namespace {

// Enough texts for several blocks of judging, many of them without a single letter in common.
std::vector<std::string> vieleTexte()
{
    // The Kelvin sign, the capital sharp s and the dotted capital I change their length when folded.
    const std::vector<std::string> stuecke{"a", "B", "Ä",  "ß", "ẞ", "\u212A", "İ",
                                           "1", " ", "\t", "-", "é", "ab",     "Welle"};
    std::mt19937 quelle(3);
    std::vector<std::string> texte;
    for (int i = 0; i < 12000; ++i) {
        std::string text;
        for (std::size_t n = quelle() % 9; n > 0; --n)
            text += stuecke[quelle() % stuecke.size()];
        texte.push_back(text);
    }
    return texte;
}

std::vector<Zeilennummer> alleZeilen(const Column& spalte)
{
    std::vector<Zeilennummer> zeilen(spalte.anzahl());
    std::iota(zeilen.begin(), zeilen.end(), 0);
    return zeilen;
}

template <class Pruefung>
std::vector<Zeilennummer> einzeln(const std::vector<std::string>& texte, const Pruefung& pruefung)
{
    std::vector<Zeilennummer> zeilen;
    for (std::size_t i = 0; i < texte.size(); ++i)
        if (pruefung(texte[i]))
            zeilen.push_back(static_cast<Zeilennummer>(i));
    return zeilen;
}

TEST(ColumnSearch, FindsWhatLookingAtEachTextFinds)
{
    const auto texte = vieleTexte();
    for (const auto suche : {Textvorrat::Suche::Alle, Textvorrat::Suche::Nachbar}) {
        TextColumn spalte(suche);
        for (const auto& text : texte)
            spalte.haengeTextAn(text);
        for (const auto* muster : {"%", "", "a%", "%welle%", "%aA%", "Welle1", "ß%", "%k%", "%\u212A%", "i%", "%ẞ%",
                                   "%ä", "_b%", "%1_1%", "[a-c]%", "%b%b%", " %", "%\t%", "%xyz%"}) {
            const LikePattern einzelnes(muster, Wildcards::Sql);
            for (const bool verneint : {false, true}) {
                auto zeilen = alleZeilen(spalte);
                likeTreffer(spalte, muster, Wildcards::Sql, verneint)->behalte(zeilen);
                EXPECT_EQ(zeilen, einzeln(texte, [&](const auto& text) { return einzelnes.matches(text) != verneint; }))
                    << muster;
            }
        }
        for (const auto* text : {"", "a", "AB ", "ss", "ẞ", "k", "a a", "é", "welle1", "1-"}) {
            auto zeilen = alleZeilen(spalte);
            gleichTreffer(spalte, text, false)->behalte(zeilen);
            EXPECT_EQ(zeilen, einzeln(texte, [&](const auto& zelle) { return equalText(zelle, text); })) << text;
        }
    }
}

TEST(ColumnSearch, TellsBeforehandThatNothingWillBeFound)
{
    TextColumn spalte(Textvorrat::Suche::Nachbar); // So many texts that they are judged on two processors.
    const auto texte = vieleTexte();
    for (int i = 0; i < 6; ++i)
        for (const auto& text : texte)
            spalte.haengeTextAn(text + static_cast<char>('0' + i));
    spalte.haengeTextAn("ganz hinten");
    for (const auto* muster : {"%hinten", "%xyz%", "welle%5", "q%", "%\u212A%1", "%", "%a_z%"}) {
        const LikePattern einzelnes(muster, Wildcards::Sql);
        std::vector<Zeilennummer> erwartet;
        for (const Zeilennummer zeile : alleZeilen(spalte))
            if (einzelnes.matches(alsText(spalte.wert(zeile))))
                erwartet.push_back(zeile);
        const auto treffer = likeTreffer(spalte, muster, Wildcards::Sql, false);
        EXPECT_EQ(treffer->nirgends(), erwartet.empty()) << muster;
        auto zeilen = alleZeilen(spalte);
        treffer->behalte(zeilen);
        EXPECT_EQ(zeilen, erwartet) << muster;
    }
}

TEST(ColumnSearch, BytesAreFoundAtEveryPlaceAndAcrossEveryWindow)
{
    for (std::size_t laenge = 1; laenge < 300; laenge += 7) {
        for (std::size_t stelle = 0; stelle + 3 <= laenge; ++stelle) {
            std::string bytes(laenge, 'x');
            bytes.replace(stelle, 3, "abc");
            EXPECT_EQ(findeBytes(bytes, "abc", 0), stelle);
            EXPECT_EQ(findeBytes(bytes, "abc", stelle + 1), std::string::npos);
        }
        EXPECT_EQ(findeBytes(std::string(laenge, 'a'), "ab", 0), std::string::npos);
    }
}

TEST(Column, KeepsTextsWhoseSearchNoLongerPays)
{
    TextColumn spalte;
    constexpr int ANZAHL = 150'000; // All different: on the way it stops looking for known texts.
    for (int i = 0; i < ANZAHL; ++i)
        spalte.haengeTextAn("Text " + std::to_string(i));
    for (int i = 0; i < ANZAHL; ++i)
        spalte.haengeTextAn("Text " + std::to_string(i % 10));
    spalte.schliesseAb();
    spalte.setze(5, std::string("neu"));
    spalte.setze(6, Value{});
    for (int i = 7; i < 2 * ANZAHL; i += 991)
        ASSERT_EQ(spalte.wert(static_cast<Zeilennummer>(i)),
                  Value("Text " + std::to_string(i < ANZAHL ? i : (i - ANZAHL) % 10)));
    EXPECT_EQ(spalte.wert(5), Value(std::string("neu")));
    EXPECT_TRUE(spalte.istNull(6));
}

TEST(Column, HoldsEachTextOnceWhenTheyRepeat)
{
    TextColumn spalte;
    for (int i = 0; i < 200'000; ++i)
        spalte.haengeTextAn("Werkstoff " + std::to_string(i % 500));
    EXPECT_EQ(spalte.texte().anzahl(), 501u);
}

TEST(Column, NumberColumnsKeepCellsOfAnotherKind)
{
    const std::vector<std::pair<FeldTyp, std::vector<Value>>> faelle{
        {FeldTyp::Ganzzahl, {std::int64_t{3}, std::string("drei"), Value{}, 2.5, std::int64_t{-1}}},
        {FeldTyp::Gleitkomma, {1.5, std::string("x"), Value{}, -0.25}},
        {FeldTyp::Datum, {Zeitpunkt{86400}, std::string("gestern"), Value{}, Zeitpunkt{-5}, std::int64_t{7}}}};
    for (const auto& [typ, werte] : faelle) {
        const auto spalte = neueSpalte(typ);
        for (const Value& wert : werte)
            spalte->haengeAn(wert);
        for (std::size_t i = 0; i < werte.size(); ++i) {
            EXPECT_EQ(spalte->wert(static_cast<Zeilennummer>(i)), werte[i]);
            EXPECT_EQ(spalte->istNull(static_cast<Zeilennummer>(i)), istNull(werte[i]));
        }
        spalte->setze(1, werte[0]);
        EXPECT_EQ(spalte->wert(1), werte[0]);
        spalte->setze(1, Value{});
        EXPECT_TRUE(spalte->istNull(1));
    }
}

TEST(Rowkeys, FindTheirRowsWhetherCloseTogetherOrNot)
{
    const std::int64_t kleinste = std::numeric_limits<std::int64_t>::min();
    const std::int64_t groesste = std::numeric_limits<std::int64_t>::max();
    for (const std::vector<Zeilenschluessel>& schluessel : {std::vector<Zeilenschluessel>{},
                                                            {5},
                                                            {3, 1, 2},
                                                            {-4, 7, 0},
                                                            {kleinste, 0, groesste},
                                                            {1, 1'000'000'000, 17}}) {
        Schluesselkarte karte(schluessel);
        for (std::size_t zeile = 0; zeile < schluessel.size(); ++zeile)
            EXPECT_EQ(karte.findeZeile(schluessel[zeile]), static_cast<Zeilennummer>(zeile));
        for (const Zeilenschluessel fremd : {std::int64_t{4}, std::int64_t{999}, groesste - 1, kleinste + 1})
            EXPECT_EQ(karte.findeZeile(fremd), std::nullopt);
    }
}

} // namespace
