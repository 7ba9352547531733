#include "database/new_database.h"
#include "database/open_engine.h"
#include "database/postgres_cluster.h"
#include "register/register_fixture.h"

#include <gmock/gmock.h>

namespace quelvarn {

using ::testing::HasSubstr;

// The document page over a register whose server goes away and comes back.
class ServerAway : public RegisterTest
{
protected:
    void SetUp() override
    {
        cluster_ = test::PostgresCluster::find();
        if (!cluster_ || !cluster_->server())
            GTEST_SKIP() << "no PostgreSQL server of its own can be started here";
        address_ = cluster_->newDatabase();
        engine_ = openPostgres(address_);
        createRegister(*engine_);
        session_.database.connection = Connection(openPostgres(address_));
        for (const char* name : {"A", "B", "C"})
            addDocument(0, name);
        showDocument(0, "B");
    }
    void TearDown() override
    {
        if (!cluster_)
            return;
        cluster_->start();
        engine_.reset();
        page_.databaseChanges();
        session_.database.connection.Close();
        cluster_->release(address_);
    }

    void rebuildFails()
    {
        world_.boxes.expect("Neuaufbau der Tabelle", "Fehler beim Neuaufbau der Tabelle!");
        world_.boxes.answer(); // Fehlermeldung
        tabs_.rebuild();
        EXPECT_THAT(world_.boxes.last().text, HasSubstr("Die Verbindung zur Datenbank ist unterbrochen.\n"));
    }
    // All that a person sees of the table.
    std::string shown() const
    {
        const DocumentTable& table = tables_.current();
        return list() + "|" + std::to_string(static_cast<int>(table.state())) + "|" + std::to_string(table.count()) +
               "|" + session_.AktDoku.DokuBez + "|" + panels_.fileName() + "|" + panels_.folder() + "|" +
               panels_.status().text + "|" + table.narrowing().quickFilter + "|" + tree();
    }

    test::PostgresCluster* cluster_ = nullptr;
    std::string address_;
};

TEST_F(ServerAway, AFailedRebuildKeepsTheListAndTheNextOneWorks)
{
    const auto asItIs = [] {};
    const auto filtered = [&] {
        filter(0, "DokuBez = 'B'");
        tables_[0].showFiltered({{}, {}, "Text"});
    };
    const auto result = [&] {
        Recordset rows;
        rows.Open("Select * From PartTabelle Where DokuBez = 'B'", session_.database.connection);
        tables_[0].showResult(std::move(rows), {});
    };
    const auto newer = [&] { tables_[0].markNewer(); };
    const std::pair<std::function<void()>, std::string> cases[]{
        {asItIs, "A/0 B/0 C/0 "}, {filtered, "B/0 "}, {result, "B/0 "}, {newer, "A/0 B/0 C/0 "}};
    int added = 0;
    std::string all = "A/0 B/0 C/0 ";
    for (const auto& [state, rows] : cases) {
        state();
        const std::string before = shown();
        EXPECT_THAT(before, ::testing::StartsWith(added > 0 && rows != "B/0 " ? all : rows));
        cluster_->stop();
        for (int i = 0; i < 2; ++i) {
            rebuildFails();
            EXPECT_EQ(shown(), before);
        }
        cluster_->start();
        const std::string name = "D" + std::to_string(++added);
        addDocument(0, name);
        tabs_.rebuild();
        EXPECT_EQ(list(), all += name + "/0 ");
        EXPECT_EQ(tables_.current().state(), TableState::Open);
        EXPECT_EQ(session_.AktDoku.DokuBez, "B");
    }
}

TEST_F(ServerAway, ATableThatCouldNotBeOpenedIsOpenedNextTime)
{
    addDocument(1, "S");
    cluster_->stop();
    world_.boxes.expect("Wechsel der Tabelle", "Fehler beim Wechsel der Tabelle!");
    world_.boxes.answer();
    tabs_.chooseTab(1);
    EXPECT_EQ(list(), "");
    cluster_->start();
    tabs_.chooseTab(1);
    EXPECT_EQ(list(), "S/0 ");
    tabs_.chooseTab(0);
    EXPECT_EQ(list(), "A/0 B/0 C/0 ");
}

} // namespace quelvarn
