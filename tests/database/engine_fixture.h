#pragma once

#include "database/engine.h"
#include "database/new_database.h"
#include "database/odbc_drivers.h"
#include "database/postgres_cluster.h"
#include "database/sql/parser.h"
#include "fakes/temp_folder.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::test {

// One suite for every engine: a fresh, empty database each time.
class EngineTest : public ::testing::TestWithParam<std::string_view>
{
protected:
    void SetUp() override
    {
        if (istPostgres()) {
            PostgresCluster* cluster = PostgresCluster::find();
            if (!cluster)
                GTEST_SKIP() << "no PostgreSQL server is installed here";
            adresse_ = cluster->neueDatenbank();
        }
        if (istOdbc()) {
            if (const std::string fehlt = bereiteOdbcVor(istPostgres(), adresse_); !fehlt.empty())
                GTEST_SKIP() << fehlt;
        }
        engine_ = oeffne();
    }

    void TearDown() override
    {
        engine_.reset();
        if (!adresse_.empty())
            PostgresCluster::find()->gibFrei(adresse_);
    }

    bool istPostgres() const { return GetParam().ends_with("PostgreSQL"); }
    bool istOdbc() const { return GetParam().starts_with("Odbc"); }

    // Another connection to the same database.
    std::shared_ptr<Engine> oeffne() const
    {
        if (istOdbc())
            return oeffneOdbc(istPostgres() ? odbcText(adresse_) : odbcText(ordner_.path() / "test.qv"));
        return istPostgres() ? oeffnePostgres(adresse_) : oeffneSqlite(ordner_.path() / "test.qv", true);
    }

    static sql::Select select(std::string_view text) { return std::get<sql::Select>(sql::parseAnweisung(text)); }

    // The rows of a SELECT, columns divided by "|", Null as "Null".
    std::vector<std::string> lies(std::string_view text) const { return zeilen(*engine_->lese(select(text), {})); }

    std::int64_t fuehreAus(std::string_view text) { return engine_->fuehreAus(sql::parseAnweisung(text)); }

    static std::vector<std::string> zeilen(Zeilenleser& leser)
    {
        std::vector<std::string> zeilen;
        while (leser.next()) {
            std::string& zeile = zeilen.emplace_back();
            for (std::size_t i = 0; i < leser.spalten().size(); ++i)
                zeile += (i ? "|" : "") + (leser.istNull(i) ? "Null" : alsText(leser.wert(i)));
        }
        return zeilen;
    }

    // A table "Tafel" with these columns; each row's values in their order.
    void fuelle(std::vector<Spalte> spalten, const std::vector<std::vector<Value>>& zeilen,
                std::vector<std::vector<IndexSpalte>> indexe = {})
    {
        const Tabellenschema tafel{"Tafel", std::move(spalten), std::move(indexe)};
        engine_->legeTabelleAn(tafel);
        const auto schreiber = engine_->massenschreiber("Tafel", tafel.spalten);
        for (const auto& zeile : zeilen)
            schreiber->zeile(zeile);
        schreiber->beende();
        engine_->legeIndexeAn(tafel);
    }

    // One text column "Wort".
    void fuelleWorte(const std::vector<Value>& worte)
    {
        std::vector<std::vector<Value>> zeilen;
        for (const Value& wort : worte)
            zeilen.push_back({wort});
        fuelle({{"Wort", FeldTyp::Text}}, zeilen, {{{"Wort", false}}});
    }

    TempFolder ordner_;
    std::string adresse_;
    std::shared_ptr<Engine> engine_;
};

inline const auto eigeneEngines = ::testing::Values("SQLite", "PostgreSQL");
// What the ODBC engine does otherwise (odbc_drivers.h names it) is skipped or told apart in the test concerned.
inline const auto alleEngines = ::testing::Values("SQLite", "PostgreSQL", "OdbcSQLite", "OdbcPostgreSQL");
inline constexpr auto engineName = [](const auto& info) { return std::string(info.param); };

} // namespace quelvarn::test
