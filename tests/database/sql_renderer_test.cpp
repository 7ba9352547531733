#include "base/collation.h"
#include "base/runtime_error.h"
#include "database/sql/parser.h"
#include "database/sql/renderer.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace quelvarn;
using namespace quelvarn::sql;

namespace {

const Tabellenschema PARTS{"PartTabelle",
                           {{"DokuBez", FeldTyp::Text},
                            {"Größe", FeldTyp::Text},
                            {"Status", FeldTyp::Ganzzahl},
                            {"Hauptwert_a", FeldTyp::Gleitkomma},
                            {"Erstellt", FeldTyp::Datum}},
                           {}};

// The parameters as they would be read, divided by "|".
std::string parameter(const Gerendert& gerendert)
{
    std::string text;
    for (const Value& wert : gerendert.parameter) {
        text += text.empty() ? "" : "|";
        if (const auto* zeit = std::get_if<Zeitpunkt>(&wert))
            text += "@" + formatIso(*zeit);
        else if (std::holds_alternative<std::string>(wert))
            text += "'" + std::get<std::string>(wert) + "'";
        else
            text += istNull(wert) ? "Null" : alsText(wert);
    }
    return text;
}

Gerendert gerendert(const Dialekt& dialekt, std::string_view sql, std::size_t grenze = 0,
                    MitSchluessel schluessel = MitSchluessel::Nein)
{
    const Anweisung anweisung = parseAnweisung(sql);
    if (const auto* select = std::get_if<Select>(&anweisung))
        return dialekt.select(*select, PARTS, schluessel, grenze);
    return dialekt.aenderung(anweisung, PARTS);
}

// What a condition becomes, with its parameters behind.
std::string where(const Dialekt& dialekt, const std::string& bedingung)
{
    const std::string kopf = "DELETE FROM \"PartTabelle\" WHERE ";
    const Gerendert fertig = gerendert(dialekt, "DELETE FROM PartTabelle WHERE " + bedingung);
    EXPECT_TRUE(fertig.text.starts_with(kopf)) << fertig.text;
    return fertig.text.substr(kopf.size()) + " <- " + parameter(fertig);
}

struct Fall
{
    std::string bedingung;
    std::string sqlite;
    std::string postgres;
};

const std::string LETZTES = "\U0010FFFF";

} // namespace

TEST(SqlRenderer, ComparesEachColumnByItsTypeOnEveryEngine)
{
    const std::vector<Fall> faelle{
        {"dokubez = 'Ä-1 '", "\"DokuBez\" = ?1 <- 'Ä-1 '", "qv_key(\"DokuBez\") = $1 <- '" + sortKey("ä-1") + "'"},
        {"Größe > 1.5", "\"Größe\" > ?1 <- '1,5'", "qv_key(\"Größe\") > $1 <- '" + sortKey("1,5") + "'"},
        {"Status = 3", "\"Status\" = ?1 <- 3", "\"Status\" = $1::bigint <- 3"},
        {"Status <= '4'", "\"Status\" <= ?1 <- 4", "\"Status\" <= $1::bigint <- 4"},
        {"Status <> 1.5", "\"Status\" <> ?1 <- 1,5", "\"Status\" <> $1::float8 <- 1,5"},
        {"Hauptwert_a >= '1,5'", "\"Hauptwert_a\" >= ?1 <- 1,5", "\"Hauptwert_a\" >= $1::float8 <- 1,5"},
        {"Not Hauptwert_a < 'viel'", "NOT (NULL) <- ", "NOT (NULL::boolean) <- "},
        {"Erstellt >= #11/15/26 08:00:00#", "\"Erstellt\" >= ?1 <- '2026-11-15 08:00:00'",
         "\"Erstellt\" >= $1::timestamp <- @2026-11-15 08:00:00"},
        {"Erstellt = '15.11.26'", "\"Erstellt\" = ?1 <- '2026-11-15 00:00:00'",
         "\"Erstellt\" = $1::timestamp <- @2026-11-15 00:00:00"},
        {"Erstellt = 'gestern'", "NULL <- ", "NULL::boolean <- "},
        {"Erstellt Is Not Null", "\"Erstellt\" IS NOT NULL <- ", "\"Erstellt\" IS NOT NULL <- "},
        {"(Status = 1 OR Status = 2) AND NOT (Status = 2 AND DokuBez IS NULL)",
         "((\"Status\" = ?1 OR \"Status\" = ?2) AND NOT ((\"Status\" = ?3 AND \"DokuBez\" IS NULL))) <- 1|2|2",
         "((\"Status\" = $1::bigint OR \"Status\" = $2::bigint) AND NOT ((\"Status\" = $3::bigint AND \"DokuBez\" IS "
         "NULL))) <- 1|2|2"},
    };
    for (const Fall& fall : faelle) {
        EXPECT_EQ(where(sqliteDialekt(), fall.bedingung), fall.sqlite);
        EXPECT_EQ(where(postgresDialekt(), fall.bedingung), fall.postgres);
    }
}

TEST(SqlRenderer, MatchesPatternsAsEachEngineCan)
{
    const std::vector<Fall> faelle{
        {"DokuBez Like '%Ä\\_'", "qv_like(?1, \"DokuBez\") <- '%Ä\\_'",
         "qv_fold(\"DokuBez\") LIKE $1 ESCAPE '\\' <- '%ä\\\\_'"},
        {"DokuBez Not Like ''", "NOT (\"DokuBez\" COLLATE BINARY = ?1) <- ''", "NOT (\"DokuBez\" = $1) <- ''"},
        {"DokuBez Like 'A 1'", "(\"DokuBez\" = ?1 AND qv_like(?2, \"DokuBez\")) <- 'a 1'|'A 1'",
         "(qv_key(\"DokuBez\") = $1 AND qv_fold(\"DokuBez\") LIKE $2 ESCAPE '\\') <- '" + sortKey("A 1") + "'|'a 1'"},
        {"DokuBez Like 'FA%'",
         "(\"DokuBez\" >= ?1 AND \"DokuBez\" < ?2 AND qv_like(?3, \"DokuBez\")) <- 'fa'|'fa" + LETZTES + "'|'FA%'",
         "(qv_key(\"DokuBez\") >= $1 AND qv_key(\"DokuBez\") < $2 AND qv_fold(\"DokuBez\") LIKE $3 ESCAPE '\\') <- "
         "'fa'|'fa" +
             LETZTES + "'|'fa%'"},
        {"DokuBez Like '%'", "qv_like(?1, \"DokuBez\") <- '%'", "qv_fold(\"DokuBez\") LIKE $1 ESCAPE '\\' <- '%'"},
        {"DokuBez Like '%[!a-c.]_x'", "qv_like(?1, \"DokuBez\") <- '%[!a-c.]_x'",
         "qv_fold(\"DokuBez\") ~ $1 <- '^.*[^a-c\\U0000002e].x$'"},
        {"DokuBez Like '[z-a][][[]+'", "qv_like(?1, \"DokuBez\") <- '[z-a][][[]+'",
         "qv_fold(\"DokuBez\") ~ $1 <- '^(?!)[\\U0000005b]\\U0000002b$'"},
        {"Hauptwert_a Like '1,%'",
         "qv_like(?1, iif(\"Hauptwert_a\" IS NULL, NULL, replace(printf('%.15g', \"Hauptwert_a\"), '.', ','))) <- "
         "'1,%'",
         "qv_fold(replace(CAST(\"Hauptwert_a\" AS text), '.', ',')) LIKE $1 ESCAPE '\\' <- '1,%'"},
    };
    for (const Fall& fall : faelle) {
        EXPECT_EQ(where(sqliteDialekt(), fall.bedingung), fall.sqlite);
        EXPECT_EQ(where(postgresDialekt(), fall.bedingung), fall.postgres);
    }
}

TEST(SqlRenderer, NamesColumnsAndOrdersRows)
{
    const std::string sql = "SELECT status, DOKUBEZ FROM parttabelle ORDER BY DokuBez, Status DESC";
    const Gerendert sqlite = gerendert(sqliteDialekt(), sql, 5, MitSchluessel::Ja);
    EXPECT_EQ(sqlite.text, "SELECT rowid, \"Status\", \"DokuBez\" FROM \"PartTabelle\" ORDER BY \"DokuBez\", "
                           "\"Status\" DESC LIMIT 5");
    EXPECT_EQ(sqlite.spalten, (std::vector<Spalte>{{"Status", FeldTyp::Ganzzahl}, {"DokuBez", FeldTyp::Text}}));
    EXPECT_EQ(gerendert(postgresDialekt(), sql).text,
              "SELECT \"Status\", \"DokuBez\" FROM \"PartTabelle\" ORDER BY qv_key(\"DokuBez\") ASC NULLS FIRST, "
              "\"Status\" DESC NULLS LAST");
    EXPECT_EQ(gerendert(sqliteDialekt(), "SELECT * FROM PartTabelle").spalten, PARTS.spalten);
    EXPECT_EQ(gerendert(postgresDialekt(), "SELECT Count(*) FROM PartTabelle WHERE Status = 1").text,
              "SELECT COUNT(*) FROM \"PartTabelle\" WHERE \"Status\" = $1::bigint");
}

TEST(SqlRenderer, LeavesTheOrderOfADistinctToTheCallerOnlyWhereItMust)
{
    const std::string sql = "SELECT DISTINCT DokuBez FROM PartTabelle ORDER BY DokuBez";
    const Gerendert sqlite = gerendert(sqliteDialekt(), sql, 1);
    EXPECT_TRUE(sqlite.sortiertSelbst);
    EXPECT_EQ(sqlite.text, "SELECT DISTINCT \"DokuBez\" FROM \"PartTabelle\" ORDER BY \"DokuBez\" LIMIT 1");
    const Gerendert postgres = gerendert(postgresDialekt(), sql, 1);
    EXPECT_FALSE(postgres.sortiertSelbst);
    EXPECT_EQ(postgres.text, "SELECT \"DokuBez\" FROM \"PartTabelle\" GROUP BY \"DokuBez\" ORDER BY MIN(qv_id)");
    EXPECT_TRUE(gerendert(postgresDialekt(), "SELECT DISTINCT DokuBez FROM PartTabelle").sortiertSelbst);
}

TEST(SqlRenderer, WritesValuesInTheTypeOfTheirColumn)
{
    const Gerendert eingefuegt =
        gerendert(postgresDialekt(), "INSERT INTO PartTabelle (DokuBez, Größe, Status, Hauptwert_a, Erstellt) VALUES "
                                     "('A', Null, '3', 2, '15.11.26')");
    EXPECT_EQ(eingefuegt.text, "INSERT INTO \"PartTabelle\" (\"DokuBez\", \"Größe\", \"Status\", \"Hauptwert_a\", "
                               "\"Erstellt\") VALUES ($1, $2, $3::bigint, $4::float8, $5::timestamp)");
    EXPECT_EQ(parameter(eingefuegt), "'A'|Null|3|2|@2026-11-15 00:00:00");
    EXPECT_TRUE(std::holds_alternative<double>(eingefuegt.parameter[3]));

    const std::vector<Zuweisung> werte{{"Größe", std::int64_t{7}}};
    const Gerendert geaendert = sqliteDialekt().aendere(PARTS, 42, werte);
    EXPECT_EQ(geaendert.text, "UPDATE \"PartTabelle\" SET \"Größe\" = ?1 WHERE rowid = ?2");
    EXPECT_EQ(parameter(geaendert), "'7'|42");
    EXPECT_EQ(postgresDialekt().loesche(PARTS, 42).text, "DELETE FROM \"PartTabelle\" WHERE qv_id = $1::bigint");
    EXPECT_EQ(sqliteDialekt().fuegeEin(PARTS, {}).text, "INSERT INTO \"PartTabelle\" DEFAULT VALUES");
}

TEST(SqlRenderer, RefusesWhatTheTableDoesNotHave)
{
    const std::vector<std::pair<std::string, int>> faelle{
        {"SELECT Preis FROM PartTabelle", FEHLER_FELD_FEHLT},
        {"SELECT * FROM PartTabelle WHERE Preis = 1", FEHLER_FELD_FEHLT},
        {"SELECT * FROM PartTabelle ORDER BY Preis", FEHLER_FELD_FEHLT},
        {"SELECT DISTINCT DokuBez FROM PartTabelle ORDER BY Status", FEHLER_FELD_FEHLT},
        {"UPDATE PartTabelle SET Preis = 1", FEHLER_FELD_FEHLT},
        {"UPDATE PartTabelle SET Status = 'offen'", FEHLER_DATENTYP},
        {"INSERT INTO PartTabelle (Erstellt) VALUES ('')", FEHLER_DATENTYP},
    };
    for (const auto& [sql, nummer] : faelle) {
        try {
            gerendert(sqliteDialekt(), sql);
            ADD_FAILURE() << sql;
        } catch (const Laufzeitfehler& fehler) {
            EXPECT_EQ(fehler.nummer(), nummer) << fehler.beschreibung();
        }
    }
}

TEST(SqlRenderer, AccessIsTakenAtItsWord)
{
    const std::pair<std::string, std::string> faelle[] = {
        {"Select DokuBez, Status From PartTabelle Where Größe = 'ä''b' Order By DokuBez, Status Desc",
         "SELECT TOP 5 [DokuBez], [Status] FROM [PartTabelle] WHERE [Größe] = ? ORDER BY [DokuBez], [Status] DESC <- "
         "'ä'b'"},
        {"Select Distinct DokuBez From PartTabelle Where DokuBez Not Like '' And DokuBez Like 'a#%*_[a-c]?[b'",
         "SELECT DISTINCT TOP 5 [DokuBez] FROM [PartTabelle] WHERE (NOT ([DokuBez] LIKE ?) AND [DokuBez] LIKE ?) <- "
         "''|'a[#]%[*]_[a-c][?][[]b'"},
        {"Select Count(*) From PartTabelle Where Erstellt >= #03/07/06 13:59:01# And Status = '3'",
         "SELECT COUNT(*) FROM [PartTabelle] WHERE ([Erstellt] >= #03/07/2006 13:59:01# AND [Status] = 3) <- "},
        {"Update PartTabelle Set Hauptwert_a = 1.5, Größe = Null Where Status Is Null",
         "UPDATE [PartTabelle] SET [Hauptwert_a] = 1.5, [Größe] = Null WHERE [Status] IS NULL <- "},
        {"Insert Into PartTabelle (DokuBez, Status) Values ('a', 2)",
         "INSERT INTO [PartTabelle] ([DokuBez], [Status]) VALUES (?, 2) <- 'a'"},
    };
    for (const auto& [anweisung, erwartet] : faelle) {
        const Gerendert fertig = gerendert(accessDialekt(), anweisung, 5);
        EXPECT_EQ(fertig.text + " <- " + parameter(fertig), erwartet);
    }
    const Zuweisung bild[] = {{"DokuBez", std::string("a")}, {"Größe", {}}, {"Status", std::int64_t{2}}};
    const Gerendert loeschen = accessDialekt().loescheZeile(PARTS, bild);
    EXPECT_EQ(loeschen.text,
              "DELETE FROM [PartTabelle] WHERE StrComp([DokuBez], ?, 0) = 0 AND [Größe] IS NULL AND [Status] = 2");
}
