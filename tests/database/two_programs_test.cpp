#include "base/runtime_error.h"
#include "database/engine_fixture.h"
#include "database/new_database.h"

#include <chrono>
#include <cstdlib>
#include <future>
#include <random>
#include <thread>

namespace quelvarn::test {
namespace {

constexpr int ZEILEN = 100;
constexpr const char* DATEI = "gemeinsam.qv";

class TwoPrograms : public ::testing::Test
{
protected:
    static std::vector<std::int64_t> plaetze(Engine& engine)
    {
        std::vector<std::int64_t> alle;
        const auto select = std::get<sql::Select>(sql::parseAnweisung("Select Platz From Tafel"));
        for (const auto leser = engine.lese(select, MitSchluessel::Ja); leser->next();)
            alle.push_back(leser->ganzzahl(0));
        return alle;
    }
};

// What each of the two does, in the folder where it is started: it announces itself, waits for the other and writes.
TEST_F(TwoPrograms, DISABLED_OneOfThem)
{
    const auto engine = oeffneSqlite(DATEI, false);
    const sql::Zuweisung werte[] = {{"Platz", static_cast<std::int64_t>(std::random_device()())}};
    engine->fuegeEin("Tafel", werte);
    const auto ende = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (plaetze(*engine).size() < 2 && std::chrono::steady_clock::now() < ende)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    for (int nummer = 1; nummer < ZEILEN; ++nummer) {
        engine->beginne();
        engine->aendere("Tafel", engine->fuegeEin("Tafel", werte), werte);
        engine->schliesseAb();
    }
}

TEST_F(TwoPrograms, WriteOneFileAtOnceAndLoseNothing)
{
    const TempFolder ordner;
    const auto engine = oeffneSqlite(ordner / DATEI, true);
    engine->legeTabelleAn({"Tafel", {{"Platz", FeldTyp::Ganzzahl}}, {}});
    const auto programm = std::filesystem::absolute(::testing::internal::GetArgvs().front());
    const auto vorher = std::filesystem::current_path();
    std::filesystem::current_path(ordner.path());
    const std::string befehl = "\"" + programm.string() +
                               "\" --gtest_filter=TwoPrograms.DISABLED_OneOfThem"
                               " --gtest_also_run_disabled_tests --gtest_brief=1";
    const auto starte = [&] { return std::system(befehl.c_str()); };
    auto eines = std::async(std::launch::async, starte);
    auto anderes = std::async(std::launch::async, starte);
    EXPECT_EQ(eines.get(), 0);
    EXPECT_EQ(anderes.get(), 0);
    std::filesystem::current_path(vorher);

    const std::vector<std::int64_t> alle = plaetze(*engine);
    EXPECT_EQ(alle.size(), 2U * ZEILEN);
    EXPECT_EQ(std::ranges::count(alle, alle.front()), ZEILEN);
    int wechsel = 0;
    for (std::size_t i = 1; i < alle.size(); ++i)
        wechsel += alle[i] != alle[i - 1];
    EXPECT_GT(wechsel, 2) << "they wrote one after the other";
}

} // namespace
} // namespace quelvarn::test
