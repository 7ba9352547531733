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
            start.world.dateien.verbinde(REGISTERPFAD, datei);
            start.world.dateien.legeAn("W:\\Plot\\x.txt");
            start.world.meldungen.erlaubeHinweise();
            start.session.user.Anwender = "mueller";
            start.session.folders.OrdnerSEDokumente = "C:\\SE";
            start.session.database.DatenbankPfad = REGISTERPFAD;
        }
        atOnce([](Start& start) {
            Ports ports = start.world.ports();
            start.good = Hauptprogramm(start.session, ports);
        });
    }

    void expectNoTwins()
    {
        const auto rows = iniZeilen("Feld2 Like '%'");
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
        greetings += start.world.meldungen.gezeigt.size();
    }
    EXPECT_EQ(greetings, 1U);
    EXPECT_EQ(iniZeilen("Feld1 = 'mueller'").size(), 37U);
    expectNoTwins();
}

TEST_P(SameUser, ClosedAtOnceLeavesTheSearchTextsOfOne)
{
    startAll();
    char letter = 'a';
    for (Start& start : starts_) {
        start.session.pages.Suchtexte = {std::string(1, letter), std::string(2, letter)};
        ++letter;
    }
    atOnce([](Start& start) { schreibeDokumentseite(start.session, 0); });
    std::set<std::string> writers;
    const auto rows = iniZeilen("Feld2 = 'Suchen/Filtern'");
    for (const std::string& row : rows)
        writers.insert(split(row, '|')[3].substr(0, 1));
    EXPECT_EQ(rows.size(), 2U);
    EXPECT_EQ(writers.size(), 1U);
    expectNoTwins();
}

// What starts of older versions at once have left: it does not grow, and a setting is remembered all the same.
TEST_P(SameUser, WithTwinsOfHisRowsKeepsHisSettings)
{
    meldeAn();
    fuegeEin(iniZeilen("Feld1 = 'mueller'"));
    for (const bool on : {true, false}) {
        session.pages.ActiveQuelvarn = on;
        session.Tree.Knoten = on;
        session.orders.OfflineNummer = on ? "(2)" : "(1)";
        schreibeStartseite(session);
        schreibeDokumentseite(session, on ? 3 : 0);
        ASSERT_TRUE(Hauptprogramm(session, ports));
        EXPECT_EQ(session.pages.ActiveQuelvarn, on);
        EXPECT_EQ(session.Tree.Knoten, on);
        EXPECT_EQ(session.orders.OfflineNummer, on ? "(2)" : "(1)");
        EXPECT_EQ(session.pages.Starttabelle, on ? "Zeichnungen" : "Bauteile");
        EXPECT_EQ(session.rights.WhereStatus, " WHERE ( Status = 3 OR Status = 4)");
    }
    EXPECT_EQ(iniZeilen("Feld1 = 'mueller'").size(), 2 * 37U);
}

} // namespace quelvarn
