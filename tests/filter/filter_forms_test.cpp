// A filter stands in the table's recordset as conditions and in queries as what its text says. Over generated rows all
// forms must mean the same on every engine, and what a person chose: the star is a wildcard, all else means itself.
#include "base/collation.h"
#include "base/file_path.h"
#include "base/utf8.h"
#include "database/connection.h"
#include "database/engine_fixture.h"
#include "database/sql/conditions.h"
#include "filter/execution.h"
#include "filter/filter_run.h"
#include "filter/user_defined_match.h"

#include <array>
#include <iterator>
#include <random>
#include <string>

namespace quelvarn {
namespace {

class Wuerfel
{
public:
    explicit Wuerfel(unsigned saat) : quelle_(saat) {}
    std::size_t unter(std::size_t grenze) { return quelle_() % grenze; }
    template <class Liste> const auto& aus(const Liste& liste) { return liste[unter(std::size(liste))]; }

    std::string wert()
    {
        // clang-format off
        static constexpr const char* STUECKE[]{
            "a",  "A", "ä", "ß", "ss", " ", "1", "é", "-", "'", "''", "'''", "' AND ", "' OR '", " And Titel Like '",
            "%", "_", "\\", "[", "]", "[1]", "[!a]", "[a-c]", "[]", "!", "?", "#", "#01/02/26#", "\"", "(", "')", ",",
            " ORDER BY ", ";", "Null"};
        // clang-format on
        std::string text;
        for (std::size_t n = unter(5); n > 0; --n)
            text += aus(STUECKE);
        return text;
    }
    // Of a value that is there, so that some rows are met: as it stands, or with stars in place of its pieces.
    std::string muster(std::string text)
    {
        for (std::size_t n = unter(3); n > 0; --n) {
            const std::size_t stelle = unter(text.size() + 1);
            text = stelle > 0 && (stelle == text.size() || (text[stelle] & 0xC0) != 0x80)
                       ? text.substr(0, stelle) + "*" + (unter(2) ? text.substr(stelle) : "")
                       : "*" + text;
        }
        return text;
    }
    Zeitpunkt zeit()
    {
        static constexpr int STUNDEN[]{0, 12, 23};
        const int stunde = aus(STUNDEN);
        return Zeitpunkt::aus({2026, 1 + static_cast<int>(unter(3)), 1 + static_cast<int>(unter(3)), stunde,
                               stunde == 23 ? 59 : 0, stunde == 23 ? 59 : 0});
    }

private:
    std::mt19937 quelle_;
};

constexpr const char* TEXTFELDER[]{"Projekt", "Autor", "Titel", "Hauptmerkmal_A"};

class FilterForms : public test::EngineTest
{
protected:
    void fuelleRegister(std::size_t dokumente)
    {
        legeRegisterAn(*engine_);
        std::vector<Spalte> spalten{{"DokuBez", FeldTyp::Text},
                                    {"Status", FeldTyp::Ganzzahl},
                                    {"Erstellt", FeldTyp::Datum},
                                    {"Geaendert", FeldTyp::Datum}};
        for (const char* feld : TEXTFELDER)
            spalten.push_back({feld, FeldTyp::Text});
        const auto schreiber = engine_->massenschreiber("PartTabelle", spalten);
        const auto oderNull = [&](Value wert) { return wuerfel_.unter(8) == 0 ? Value{} : wert; };
        for (std::size_t i = 0; i < dokumente; ++i) {
            std::vector<Value> zeile{std::to_string(i), oderNull(static_cast<std::int64_t>(wuerfel_.unter(6))),
                                     oderNull(wuerfel_.zeit()), oderNull(wuerfel_.zeit())};
            for (std::size_t n = 0; n < std::size(TEXTFELDER); ++n)
                zeile.push_back(oderNull(wuerfel_.wert()));
            schreiber->zeile(zeile);
        }
        schreiber->beende();
        verbindung_.OpenAdresse(istPostgres() ? adresse_ : utf8FromPath(ordner_ / "test.qv"));
        tabelle_.setzeGanzGrenze(1);
        tabelle_.Open("Select * From PartTabelle ORDER BY DokuBez", verbindung_);
    }

    FilterSchritt schritt(bool erster)
    {
        switch (wuerfel_.unter(erster ? 9 : 8)) {
        case 0:
            return {"Erstellt", formatDatum(wuerfel_.zeit()), CodeErstellt + static_cast<int>(wuerfel_.unter(3)), {}};
        case 1:
            return {"Geaendert", formatDatum(wuerfel_.zeit()), CodeGeaendert + static_cast<int>(wuerfel_.unter(3)), {}};
        case 2:
            return {"Status", std::to_string(wuerfel_.unter(6)), CodeZahl, {}};
        case 8:
            return {"Dateiname", wuerfel_.muster(wuerfel_.wert()), CodeDateiWennGefuellt, {}};
        default:
            return {wuerfel_.aus(TEXTFELDER), wuerfel_.muster(wuerfel_.wert()), CodeText, {}};
        }
    }

    std::string dokumente(RowFilter filter)
    {
        tabelle_.Filter(std::move(filter));
        return namen(tabelle_);
    }
    // As every list and every order asks.
    std::string dokumenteDerAbfrage(std::string_view FilterString, std::string_view StatusFilter = "")
    {
        Recordset gefragt;
        gefragt.Open(sql::Query("PartTabelle")
                         .columns({"DokuBez"})
                         .where(sql::all(filterCondition(FilterString), sql::parseBedingung(StatusFilter)))
                         .sortedBy("DokuBez"),
                     verbindung_);
        return namen(gefragt);
    }
    static std::string namen(const Recordset& zeilen)
    {
        std::string text;
        for (std::size_t i = 0; i < zeilen.RecordCount(); ++i)
            text += alsText(zeilen.Zelle(i, "DokuBez")) + " ";
        return text;
    }

    Wuerfel wuerfel_{20};
    Connection verbindung_;
    Recordset tabelle_;
};
INSTANTIATE_TEST_SUITE_P(, FilterForms, test::eigeneEngines, test::engineName);

// A star is told apart from everything that is tested: every length of a run is tried.
bool meint(std::u32string_view muster, std::u32string_view text)
{
    if (muster.empty())
        return text.empty();
    if (muster.front() == U'*')
        return meint(muster.substr(1), text) || (!text.empty() && meint(muster, text.substr(1)));
    return !text.empty() && muster.front() == text.front() && meint(muster.substr(1), text.substr(1));
}

bool meint(const std::string& muster, const std::string& text)
{
    return equalText(muster, text) ||
           (muster.find('*') != std::string::npos && meint(toUtf32(foldCase(muster)), toUtf32(foldCase(text))));
}

TEST_P(FilterForms, FindTheSameRows)
{
    fuelleRegister(400);
    int mitZeilen = 0;
    for (int i = 0; i < 600; ++i) {
        FilterState filter;
        Filterzustand& zustand = filter.typen[0];
        zustand.FilterAnzahl = 1 + static_cast<int>(wuerfel_.unter(3));
        for (int n = 0; n < zustand.FilterAnzahl; ++n)
            zustand.FilterSchritte[static_cast<std::size_t>(n)] = schritt(n == 0);
        for (bool& haken : zustand.ChFilterStat)
            haken = wuerfel_.unter(2) != 0;
        BuildStatusFilter(filter, 0);

        const std::string& StatusFilter = filter.status.StatusFilter;
        const Kettenglied glied = bildeKette(zustand, schrittfragment).back();
        const std::string gefiltert = dokumente(glied.behind(filter.status));
        ASSERT_EQ(gefiltert, dokumenteDerAbfrage(glied.sqlform, StatusFilter)) << glied.sqlform;
        mitZeilen += gefiltert.empty() ? 0 : 1;
    }
    EXPECT_GT(mitZeilen, 100);
}

// Numbers as binary arithmetic leaves them, around bounds of four places.
TEST_P(FilterForms, MainValuesMeanTheSameInAQuery)
{
    fuelleRegister(0);
    const std::vector<Spalte> spalten{{"DokuBez", FeldTyp::Text}, {"Hauptwert_a", FeldTyp::Gleitkomma}};
    const auto schreiber = engine_->massenschreiber("PartTabelle", spalten);
    for (int i = 0; i < 2000; ++i) {
        double zahl = static_cast<double>(wuerfel_.unter(20)) / 10;
        for (std::size_t n = wuerfel_.unter(4); n > 0; --n)
            zahl += wuerfel_.unter(2) ? 0.1 : -0.1;
        zahl += wuerfel_.unter(4) ? 0 : 0.0001 * (static_cast<double>(wuerfel_.unter(5)) - 2) / 2;
        schreiber->zeile(std::vector<Value>{std::to_string(i), zahl});
    }
    schreiber->beende();
    tabelle_.Open(sql::Query("PartTabelle").sortedBy("DokuBez"), verbindung_);
    for (std::int64_t von = 0; von < 20; ++von) {
        std::array<Hauptwertgrenzen, ANZAHL_HAUPTWERTE> grenzen{};
        grenzen[0] = {Decimal::ofUnits(von * 1000), Decimal::ofUnits(von * 1000 + 2000)};
        std::string gemeint;
        for (std::size_t i = 0; i < tabelle_.RecordCount(); ++i) {
            const auto wert = Decimal::from(alsZahl(tabelle_.Zelle(i, "Hauptwert_a")));
            if (*wert >= grenzen[0].MinWert && *wert <= grenzen[0].MaxWert)
                gemeint += alsText(tabelle_.Zelle(i, "DokuBez")) + " ";
        }
        RowFilter filter{"Hauptwerte"};
        for (sql::AusdruckZeiger& bedingung : mainValueConditions(grenzen))
            filter.conditions.push_back(std::move(bedingung));
        EXPECT_EQ(dokumente(std::move(filter)), gemeint);
        Recordset gefragt;
        gefragt.Open(sql::Query("PartTabelle").where(sql::all(mainValueConditions(grenzen))).sortedBy("DokuBez"),
                     verbindung_);
        EXPECT_EQ(namen(gefragt), gemeint);
        tabelle_.Filter("");
    }
}

// Each value of a list finds its rows, and a pattern those that it names, in every form: the filter of the table, its
// text, a query, and the filter for user-defined properties where the pattern ends with a star.
TEST_P(FilterForms, AValueMeansItselfAndTheStarAnyRun)
{
    fuelleRegister(0);
    std::vector<std::string> werte{"20_50",    "20x50", "A[1]", "A1",       "Vorlage [NG6]", "O'Ring 5''", "O'Ring 5'",
                                   "O'Ring 5", "'",     "''",   "x' OR 'y", "100%",          "100 kg",     "a\\b",
                                   "[",        "]",     "4*6",  "4x6",      "!#?-",          "\"a\"",      " "};
    while (werte.size() < 150)
        werte.push_back(wuerfel_.wert());
    const std::vector<Spalte> spalten{{"DokuBez", FeldTyp::Text}, {"Titel", FeldTyp::Text}};
    const auto schreiber = engine_->massenschreiber("PartTabelle", spalten);
    for (std::size_t i = 0; i < werte.size(); ++i)
        schreiber->zeile(std::vector<Value>{std::to_string(i), werte[i]});
    schreiber->beende();
    tabelle_.Open(sql::Query("PartTabelle").sortedBy("DokuBez"), verbindung_);
    std::vector<std::size_t> reihe;
    for (std::size_t i = 0; i < tabelle_.RecordCount(); ++i)
        reihe.push_back(std::stoul(alsText(tabelle_.Zelle(i, "DokuBez"))));

    for (std::size_t i = 0; i < 2 * werte.size(); ++i) {
        const std::string muster = i < werte.size() ? werte[i] : wuerfel_.muster(werte[i - werte.size()]);
        if (muster.empty())
            continue;
        Filterzustand zustand;
        zustand.FilterAnzahl = 1;
        zustand.FilterSchritte[0] = {"Titel", muster, CodeText, {}};
        const Kettenglied glied = bildeKette(zustand, schrittfragment).back();
        zustand.FilterSchritte[0] = {"", "Name", CodeText, muster};
        const BenutzDefSchritte benutzDef(zustand);

        std::string gemeint, beiBenutzDef;
        for (const std::size_t n : reihe) {
            gemeint += meint(muster, werte[n]) ? std::to_string(n) + " " : "";
            beiBenutzDef += benutzDef.trifft("Name", werte[n]) ? std::to_string(n) + " " : "";
        }
        ASSERT_EQ(dokumente(glied.behind({})), gemeint) << muster;
        ASSERT_EQ(dokumenteDerAbfrage(glied.sqlform), gemeint) << glied.sqlform;
        if (muster.ends_with('*')) {
            ASSERT_EQ(beiBenutzDef, gemeint) << muster;
        }
    }
}

} // namespace
} // namespace quelvarn
