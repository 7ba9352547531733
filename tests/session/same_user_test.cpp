// Several starts of one user at once, each a program of its own with its own connection.
#include "database/postgres_cluster.h"
#include "session/register_fixture.h"
#include "session/settings_writer.h"

#include <barrier>
#include <set>
#include <thread>

namespace quelvarn {

constexpr int STARTS = 6;

struct Start
{
    FakePorts world;
    SessionState session;
    bool good = false;
};

class SameUser : public RegisterTest, public ::testing::WithParamInterface<std::string_view>
{
protected:
    SameUser() : RegisterTest(test::addressOn(GetParam())) {}
    void SetUp() override
    {
        if (GetParam() == "PostgreSQL" && !test::PostgresCluster::find())
            GTEST_SKIP() << "no PostgreSQL server is installed here";
    }

    // All begin at the same moment.
    template <class Action> void atOnce(const Action& action)
    {
        std::barrier together(STARTS);
        std::vector<std::jthread> threads;
        for (Start& start : starts_)
            threads.emplace_back([&] {
                together.arrive_and_wait();
                action(start);
            });
    }

    void startAll()
    {
        for (Start& start : starts_) {
            start.world.files.connect(REGISTER_PATH, file);
            start.world.files.create("W:\\Plot\\x.txt");
            start.world.boxes.allowHints();
            start.session.user.Anwender = "mueller";
            start.session.folders.OrdnerSEDokumente = "C:\\SE";
            start.session.database.DatenbankPfad = REGISTER_PATH;
        }
        atOnce([](Start& start) {
            Ports ports = start.world.ports();
            start.good = Hauptprogramm(start.session, ports);
        });
    }

    void expectNoTwins()
    {
        const auto rows = iniRows("Feld2 Like '%'");
        EXPECT_EQ(std::set(rows.begin(), rows.end()).size(), rows.size());
    }

    std::array<Start, STARTS> starts_;
};

INSTANTIATE_TEST_SUITE_P(Engines, SameUser, ::testing::Values("SQLite", "PostgreSQL"),
                         [](const auto& info) { return std::string(info.param); });

TEST_P(SameUser, IsNewOnceHoweverManyStartsThereAre)
{
    startAll();
    std::size_t greetings = 0;
    for (const Start& start : starts_) {
        EXPECT_TRUE(start.good);
        EXPECT_EQ(start.session.rights.WhereStatus, " WHERE ( Status = 3 OR Status = 4)");
        EXPECT_EQ(start.session.orders.PdfVorgabe.Pfad, "C:\\SE");
        greetings += start.world.boxes.shown.size();
    }
    EXPECT_EQ(greetings, 1U);
    EXPECT_EQ(iniRows("Feld1 = 'mueller'").size(), 37U);
    expectNoTwins();
}

TEST_P(SameUser, ClosedAtOnceLeavesTheSearchTextsOfOne)
{
    startAll();
    char letter = 'a';
    for (Start& start : starts_) {
        start.session.pages.SearchTexts = {std::string(1, letter), std::string(2, letter)};
        ++letter;
    }
    atOnce([](Start& start) { writeDocumentPage(start.session, 0); });
    std::set<std::string> writers;
    const auto rows = iniRows("Feld2 = 'Suchen/Filtern'");
    for (const std::string& row : rows)
        writers.insert(split(row, '|')[3].substr(0, 1));
    EXPECT_EQ(rows.size(), 2U);
    EXPECT_EQ(writers.size(), 1U);
    expectNoTwins();
}

// What starts of older versions at once have left: it does not grow, and a setting is remembered all the same.
TEST_P(SameUser, WithTwinsOfHisRowsKeepsHisSettings)
{
    addListener();
    insert(iniRows("Feld1 = 'mueller'"));
    for (const bool on : {true, false}) {
        session.pages.ActiveQuelvarn = on;
        session.Tree.Node = on;
        session.orders.OfflineNummer = on ? "(2)" : "(1)";
        writeStartPage(session);
        writeDocumentPage(session, on ? 3 : 0);
        ASSERT_TRUE(Hauptprogramm(session, ports));
        EXPECT_EQ(session.pages.ActiveQuelvarn, on);
        EXPECT_EQ(session.Tree.Node, on);
        EXPECT_EQ(session.orders.OfflineNummer, on ? "(2)" : "(1)");
        EXPECT_EQ(session.pages.Starttabelle, on ? "Zeichnungen" : "Bauteile");
        EXPECT_EQ(session.rights.WhereStatus, " WHERE ( Status = 3 OR Status = 4)");
    }
    EXPECT_EQ(iniRows("Feld1 = 'mueller'").size(), 2 * 37U);
}

} // namespace quelvarn
