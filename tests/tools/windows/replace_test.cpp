#include "database/engine.h"
#include "database/open_engine.h"
#include "fakes/temp_folder.h"
#include "tools/command_call.h"

#include <gtest/gtest.h>

namespace quelvarn::test {
namespace {

TEST(Replace, LeavesARegisterAloneThatAProgramHasOpen)
{
    TempFolder folder;
    const std::string target = path(folder / "Büro Süd.qv");
    ASSERT_EQ(runCommand({"sample", target, "--documents", "20"}).result, tools::GOOD);
    const std::string before = runCommand({"query", target, "Select * From PartTabelle"}).out;
    auto open = openSqlite(folder / "Büro Süd.qv", false);
    const Call attempt = runCommand({"create", target, "--replace"});
    EXPECT_EQ(attempt.result, tools::FAILED);
    EXPECT_NE(attempt.log.find("Büro Süd.qv' lässt sich nicht ersetzen"), std::string::npos) << attempt.log;
    EXPECT_EQ(runCommand({"query", target, "Select * From PartTabelle"}).out, before);
    open.reset();
    EXPECT_EQ(runCommand({"create", target, "--replace"}).result, tools::GOOD);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

} // namespace
} // namespace quelvarn::test
