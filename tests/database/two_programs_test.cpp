#include "base/runtime_error.h"
#include "database/engine_fixture.h"
#include "database/open_engine.h"

#include <chrono>
#include <cstdlib>
#include <future>
#include <random>
#include <thread>

namespace quelvarn::test {
namespace {

constexpr int ROWS = 100;
constexpr const char* FILE = "gemeinsam.qv";

class TwoPrograms : public ::testing::Test
{
protected:
    static std::vector<std::int64_t> places(Engine& engine)
    {
        std::vector<std::int64_t> all;
        const auto select = std::get<sql::Select>(sql::parseStatement("Select Platz From Tafel"));
        for (const auto reader = engine.read(select, WithKey::Yes); reader->next();)
            all.push_back(reader->integer(0));
        return all;
    }
};

// What each of the two does, in the folder where it is started: it announces itself, waits for the other and writes.
TEST_F(TwoPrograms, DISABLED_OneOfThem)
{
    const auto engine = openSqlite(FILE, false);
    const sql::Assignment values[] = {{"Platz", static_cast<std::int64_t>(std::random_device()())}};
    engine->insert("Tafel", values);
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (places(*engine).size() < 2 && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    for (int number = 1; number < ROWS; ++number) {
        engine->begin();
        engine->update("Tafel", engine->insert("Tafel", values), values);
        engine->commit();
    }
}

TEST_F(TwoPrograms, WriteOneFileAtOnceAndLoseNothing)
{
    const TempFolder folder;
    const auto engine = openSqlite(folder / FILE, true);
    engine->createTable({"Tafel", {{"Platz", FieldType::Integer}}, {}});
    const auto program = std::filesystem::absolute(::testing::internal::GetArgvs().front());
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    const std::string command = "\"" + program.string() +
                                "\" --gtest_filter=TwoPrograms.DISABLED_OneOfThem"
                                " --gtest_also_run_disabled_tests --gtest_brief=1";
    const auto start = [&] { return std::system(command.c_str()); };
    auto one = std::async(std::launch::async, start);
    auto other = std::async(std::launch::async, start);
    EXPECT_EQ(one.get(), 0);
    EXPECT_EQ(other.get(), 0);
    std::filesystem::current_path(before);

    const std::vector<std::int64_t> all = places(*engine);
    EXPECT_EQ(all.size(), 2U * ROWS);
    EXPECT_EQ(std::ranges::count(all, all.front()), ROWS);
    int change = 0;
    for (std::size_t i = 1; i < all.size(); ++i)
        change += all[i] != all[i - 1];
    EXPECT_GT(change, 2) << "they wrote one after the other";
}

} // namespace
} // namespace quelvarn::test
