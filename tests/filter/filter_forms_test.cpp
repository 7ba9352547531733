// A filter stands in the table's recordset in one form and in queries in the other. Over generated rows both must
// mean the same on every engine: what a person sees in the grid is what the lists and orders count.
#include "base/file_path.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "database/connection.h"
#include "database/engine_fixture.h"
#include "filter/execution.h"
#include "filter/filter_run.h"

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
        static constexpr const char* STUECKE[]{"a", "A", "ä", "Ö", "ß",  "ss", " ", "1",  "é",  "-",
                                               "'", "%", "_", "*", "\\", "]",  "!", "ab", "\"", "#"};
        std::string text;
        for (std::size_t n = unter(4); n > 0; --n)
            text += aus(STUECKE);
        return text;
    }
    // What a person types. '*' stands in no class: see below.
    std::string muster()
    {
        static constexpr const char* STUECKE[]{"*",  "%",   "_", "[aä1]", "[!a]", "[a-c]", "[%]", "[z-a]",
                                               "[]", "[ab", "a", "Ä",     "ss",   "ß",     " ",   "1",
                                               "'",  "\\",  "-", "é",     "*",    "*",     "#",   "[^ -~]"};
        std::string text;
        for (std::size_t n = 1 + unter(4); n > 0; --n)
            text += aus(STUECKE);
        const std::size_t klasse = text.find('[');
        return klasse == text.npos || text.find('*', klasse) == text.npos ? text : text.substr(0, klasse);
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
        switch (wuerfel_.unter(erster ? 6 : 5)) {
        case 0:
            return {"Erstellt", formatDatum(wuerfel_.zeit()), CodeErstellt + static_cast<int>(wuerfel_.unter(3)), {}};
        case 1:
            return {"Geaendert", formatDatum(wuerfel_.zeit()), CodeGeaendert + static_cast<int>(wuerfel_.unter(3)), {}};
        case 2:
            return {"Status", std::to_string(wuerfel_.unter(6)), CodeZahl, {}};
        case 5:
            return {"Dateiname", wuerfel_.muster(), CodeDateiWennGefuellt, {}};
        default:
            return {wuerfel_.aus(TEXTFELDER), wuerfel_.unter(2) ? wuerfel_.muster() : wuerfel_.wert(), CodeText, {}};
        }
    }

    std::string dokumente(std::string_view filter)
    {
        tabelle_.Filter(filter);
        return namen(tabelle_);
    }
    // As every list and every order asks.
    std::string dokumenteDerAbfrage(const std::string& bedingung)
    {
        Recordset gefragt;
        gefragt.Open(select(replaceAll("SELECT DokuBez FROM PartTabelle WHERE DokuBez NOT LIKE '' And " + bedingung +
                                           " ORDER BY DokuBez",
                                       "*", "%")),
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

TEST_P(FilterForms, FindTheSameRows)
{
    fuelleRegister(400);
    int verglichen = 0;
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

        const Kettenglied glied = bildeKette(zustand, schrittfragment).back();
        if (glied.filterform.empty())
            continue;
        try {
            verlangeGemeintes(glied.filterform, glied.gemeint);
        } catch (const Laufzeitfehler&) {
            continue; // Refused at the run.
        }
        const std::string gefiltert = dokumente(mitUnd(filter.status.StatusFilter, glied.filterform));
        ASSERT_EQ(gefiltert, dokumenteDerAbfrage(glied.sqlform + filter.status.StatusFilterAnd)) << glied.sqlform;
        ++verglichen;
        mitZeilen += gefiltert.empty() ? 0 : 1;
    }
    EXPECT_GT(verglichen, 450);
    EXPECT_GT(mitZeilen, 100);
}

// A query takes '%' for every '*', also where a person means the character itself. '[*]' finds a true asterisk in the
// table; the lists beside it then look for a percent sign. '%' and '_' are wildcards in both.
TEST_P(FilterForms, DifferForAnAsteriskInAClassAlone)
{
    fuelleRegister(0);
    for (const char* text : {"4*6", "4%6", "4x6", "4_6"})
        engine_->fuehreAus(sql::parseAnweisung("INSERT INTO PartTabelle (DokuBez, Titel) VALUES ('" +
                                               std::string(text) + "', '" + text + "')"));
    tabelle_.Open("Select * From PartTabelle ORDER BY DokuBez", verbindung_);
    struct
    {
        const char* muster;
        const char* gefiltert;
        const char* gefragt;
    } const faelle[]{
        {"4[*]6", "4*6 ", "4%6 "},
        {"4[%]6", "4%6 ", "4%6 "},
        {"4[_]6", "4_6 ", "4_6 "},
    };
    for (const auto& fall : faelle) {
        const std::string fragment = LikeFragment("Titel", fall.muster);
        EXPECT_EQ(dokumente(fragment), fall.gefiltert);
        EXPECT_EQ(dokumenteDerAbfrage(fragment), fall.gefragt);
    }
}

} // namespace
} // namespace quelvarn
