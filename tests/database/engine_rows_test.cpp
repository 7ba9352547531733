#include "base/collation.h"
#include "base/runtime_error.h"
#include "database/engine_fixture.h"

#include <gmock/gmock.h>
#include <limits>
#include <set>

namespace quelvarn::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class EngineRows : public EngineTest
{
protected:
    void fuelleTeile()
    {
        fuelle({{"Name", FeldTyp::Text}, {"Anzahl", FeldTyp::Ganzzahl}}, {{"Welle", 1}, {"Nabe", 2}});
    }

    // The driver of SQLite rounds doubles to 15 digits.
    static bool istRund(std::size_t spalte) { return GetParam() == "OdbcSQLite" && spalte == 2; }

    Zeilenschluessel fuegeEin(const char* name)
    {
        const sql::Zuweisung werte[] = {{"name", std::string(name)}, {"ANZAHL", std::int64_t{7}}};
        return engine_->fuegeEin("tafel", werte);
    }
};
INSTANTIATE_TEST_SUITE_P(, EngineRows, alleEngines, engineName);

TEST_P(EngineRows, EveryValueComesBackAsItWentIn)
{
    const auto tag = [](int jahr, int monat, int t, int stunde) {
        return Zeitpunkt::aus({jahr, monat, t, stunde, 59, 1});
    };
    const std::vector<std::vector<Value>> zeilen{
        {"O'Neill \"GmbH\"", std::int64_t{0}, 0.1, tag(2024, 2, 29, 13)},
        {"C:\\Teile\\n\t50%\n;--", std::numeric_limits<std::int64_t>::max(), -1e-300, tag(1899, 12, 29, 6)},
        {"Größe 😀 Ł {x} $1 ?1", std::int64_t{-5}, 1.7976931348623157e308, tag(100, 1, 1, 0)},
        {std::string(70000, 'x') + "ß", std::int64_t{2147483648}, 1.0 / 3, tag(9999, 12, 31, 23)},
        {"", Value{}, Value{}, Value{}},
        {Value{}, std::numeric_limits<std::int64_t>::min(), 0.0, Zeitpunkt{}},
    };
    const std::vector<Spalte> spalten{
        {"Wort", FeldTyp::Text}, {"Ganz", FeldTyp::Ganzzahl}, {"Zahl", FeldTyp::Gleitkomma}, {"Tag", FeldTyp::Datum}};
    fuelle(spalten, zeilen);
    for (const auto& zeile : zeilen) { // The same again, row by row.
        std::vector<sql::Zuweisung> werte;
        for (std::size_t i = 0; i < zeile.size(); ++i)
            werte.push_back({spalten[i].name, zeile[i]});
        engine_->fuegeEin("Tafel", werte);
    }

    const auto leser = engine_->lese(select("Select * From Tafel"), MitSchluessel::Ja);
    EXPECT_EQ(leser->spalten(), spalten);
    std::set<Zeilenschluessel> schluessel;
    for (std::size_t nummer = 0; nummer < 2 * zeilen.size(); ++nummer) {
        const auto& zeile = zeilen[nummer % zeilen.size()];
        ASSERT_TRUE(leser->next());
        EXPECT_TRUE(schluessel.insert(leser->schluessel()).second);
        EXPECT_TRUE(istOdbc() || leser->schluessel() == static_cast<Zeilenschluessel>(nummer + 1));
        for (std::size_t i = 0; i < zeile.size(); ++i) {
            if (istRund(i))
                continue;
            EXPECT_EQ(leser->wert(i), zeile[i]) << nummer << ", " << i;
            EXPECT_EQ(leser->istNull(i), istNull(zeile[i]));
        }
        EXPECT_EQ(leser->text(0), alsText(zeile[0]));
        EXPECT_EQ(leser->ganzzahl(1), alsGanzzahl(zeile[1]));
        EXPECT_TRUE(istRund(2) || leser->gleitkomma(2) == alsZahl(zeile[2]));
        EXPECT_EQ(leser->datum(3), alsDatum(zeile[3]));
    }
    EXPECT_FALSE(leser->next());
    EXPECT_FALSE(leser->next());
}

TEST_P(EngineRows, RowsAreWrittenByTheirKeysAndAKeyIsNeverGivenTwice)
{
    fuelleTeile();
    const Zeilenschluessel bolzen = fuegeEin("Bolzen");
    const sql::Zuweisung neu[] = {{"Name", std::string("Stift")}};
    EXPECT_TRUE(engine_->aendere("Tafel", bolzen, neu));
    EXPECT_THAT(lies("Select * From Tafel Where Anzahl = 7"), ElementsAre("Stift|7"));

    EXPECT_TRUE(engine_->loesche("Tafel", bolzen));
    EXPECT_FALSE(engine_->loesche("Tafel", bolzen));
    EXPECT_FALSE(engine_->aendere("Tafel", bolzen, neu));
    const Zeilenschluessel keil = fuegeEin("Keil");
    EXPECT_NE(keil, bolzen);

    const auto alle = engine_->lese(select("Select Name From Tafel Order By Name Desc"), MitSchluessel::Ja);
    ASSERT_TRUE(alle->next());
    const Zeilenschluessel welle = alle->schluessel();
    EXPECT_TRUE(istOdbc() || welle == 1);
    const std::string spalten[] = {"name"};
    const Zeilenschluessel gesucht[] = {keil, bolzen, welle};
    const auto leser = engine_->leseZeilen("tafel", spalten, gesucht);
    std::vector<std::string> gefunden;
    while (leser->next())
        gefunden.push_back(std::to_string(leser->schluessel()) + std::string(leser->text(0)));
    EXPECT_THAT(gefunden,
                ::testing::UnorderedElementsAre(std::to_string(welle) + "Welle", std::to_string(keil) + "Keil"));
    EXPECT_FALSE(engine_->leseZeilen("Tafel", spalten, {})->next());
}

TEST_P(EngineRows, StatementsTellHowManyRowsTheyTouched)
{
    fuelleTeile();
    EXPECT_EQ(fuehreAus("Insert Into Tafel (Name, Anzahl) Values ('Welle ', 3)"), 1);
    EXPECT_EQ(fuehreAus("Update Tafel Set Anzahl = 9, Name = 'O''Neill' Where Name = 'WELLE'"), 2);
    EXPECT_EQ(fuehreAus("Delete From Tafel Where Anzahl = 4"), 0);
    EXPECT_THAT(lies("Select Name From Tafel Where Anzahl = 9"), ElementsAre("O'Neill", "O'Neill"));
    EXPECT_EQ(fuehreAus("Delete From Tafel"), 3);
}

TEST_P(EngineRows, ALimitCutsTheResult)
{
    fuelleTeile();
    const auto leser = engine_->lese(select("Select Name From Tafel Order By Name"), MitSchluessel::Ja, 1);
    EXPECT_THAT(zeilen(*leser), ElementsAre("Nabe"));
    EXPECT_THAT(zeilen(*engine_->lese(select("Select Distinct Name From Tafel Order By Name"), {}, 1)),
                ElementsAre("Nabe"));
}

TEST_P(EngineRows, ATransactionHoldsAllOrNothing)
{
    fuelleTeile();
    const auto zweite = oeffne();
    const auto anzahlDort = [&] { return zeilen(*zweite->lese(select("Select Count(*) From Tafel"), {})).front(); };

    engine_->beginne();
    fuegeEin("Keil");
    EXPECT_EQ(anzahlDort(), "2");
    engine_->nimmZurueck();
    EXPECT_EQ(anzahlDort(), "2");

    engine_->beginne();
    fuegeEin("Keil");
    engine_->beginne(); // One inside another can be taken back by itself.
    fuegeEin("Stift");
    engine_->nimmZurueck();
    engine_->beginne();
    fuegeEin("Bolzen");
    engine_->schliesseAb();
    engine_->schliesseAb();
    EXPECT_THAT(zeilen(*zweite->lese(select("Select Name From Tafel Order By Name"), {})),
                ElementsAre("Bolzen", "Keil", "Nabe", "Welle"));

    engine_->massenschreiber("Tafel", engine_->findTabelle("Tafel")->spalten)->zeile(std::vector<Value>{"x", 1});
    EXPECT_THAT(lies("Select Count(*) From Tafel"), ElementsAre("4")) << "an unfinished bulk insert leaves nothing";
}

TEST_P(EngineRows, SeveralReadersAndWritesMayOverlap)
{
    fuelleTeile();
    const auto erster = engine_->lese(select("Select Name From Tafel Order By Name"), MitSchluessel::Ja);
    const auto zweiter = engine_->lese(select("Select Name From Tafel Order By Name"), MitSchluessel::Ja);
    ASSERT_TRUE(erster->next());
    ASSERT_TRUE(zweiter->next());
    EXPECT_EQ(erster->text(0), "Nabe");
    engine_->loesche("Tafel", erster->schluessel());
    ASSERT_TRUE(erster->next());
    EXPECT_EQ(erster->text(0), "Welle");
    EXPECT_FALSE(erster->next());
}

TEST_P(EngineRows, TablesAreFoundInAnyCaseWithTheirColumnsAsStored)
{
    legeRegisterAn(*engine_);
    for (const Tabellenschema& tabelle : registerschema())
        EXPECT_EQ(engine_->findTabelle(toUpper(tabelle.name))->spalten, tabelle.spalten) << tabelle.name;
    EXPECT_EQ(engine_->tabellen().size(), registerschema().size());
    EXPECT_EQ(engine_->findTabelle("DraftTabelle")->spalten.back().name, "F_05_leer");
    EXPECT_EQ(engine_->findTabelle("Gibtsnicht"), std::nullopt);

    Tabellenschema ini = *findTabelle("Ini");
    EXPECT_TRUE(engine_->fehlendeIndexe(ini).empty());
    ini.indexe.push_back({{"Feld5"}});
    EXPECT_EQ(engine_->fehlendeIndexe(ini).size(), istOdbc() ? 0U : 1U);
    engine_->entferneTabelle("INI");
    engine_->entferneTabelle("Ini");
    EXPECT_EQ(engine_->findTabelle("Ini"), std::nullopt);
}

TEST_P(EngineRows, FaultsCarryNumberSourceAndText)
{
    fuelleTeile();
    const auto fehler = [&](std::string_view text) {
        try {
            lies(text);
        } catch (const Laufzeitfehler& gefangen) {
            return std::to_string(gefangen.nummer()) + " " + gefangen.quelle() + ": " + gefangen.beschreibung();
        }
        return std::string("no fault");
    };
    EXPECT_EQ(fehler("Select * From Fehlt"),
              "-2147217865 " + std::string(GetParam()) + ": Die Tabelle 'Fehlt' wurde nicht gefunden.");
    EXPECT_THAT(fehler("Select Farbe From Tafel"), HasSubstr("-2147217904"));
    EXPECT_THAT(fehler("Select Name From Tafel Where Farbe = 1"), HasSubstr("-2147217904"));
    EXPECT_THROW(engine_->legeTabelleAn({"Tafel", {{"x"}}, {}}), Laufzeitfehler);
    EXPECT_THAT(lies("Select Name From Tafel Where Anzahl = 2"), ElementsAre("Nabe")) << "the connection still works";
}

} // namespace
} // namespace quelvarn::test
