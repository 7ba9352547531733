#include "tools/import_fixture.h"

namespace quelvarn::test {
namespace {

TEST_F(Import, RefusesSourcesThatAreNoAccessFile)
{
    expectRefusal("Liebe Kollegen,\nanbei die Datenbank.\n", "ist keine Access-Datenbank");
    expectRefusal("", "ist leer");
    using namespace std::string_view_literals;
    expectRefusal("\0\1\0\0Standard Jet DB"sv, "ist abgeschnitten");
    std::filesystem::remove(source_);
    test::expectRefusal({"import", path(source_), path(folder_ / "ziel.qv")}, "gibt es nicht", folder_.path());
    test::expectRefusal({"import", path(folder_.path()), path(folder_ / "ziel.qv")}, "ist keine Datei", folder_.path());
}

TEST_F(ImportOfTheSample, LeavesATargetAloneThatItMayNotReplace)
{
    const auto target = folder_ / "ziel.qv";
    write(target, "wichtig");
    test::expectRefusal({"import", path(PROBE), path(target)}, "gibt es schon", folder_.path());
    test::expectRefusal({"import", path(PROBE), path(target), "--replace"}, "ist kein Register", folder_.path());
    EXPECT_EQ(read(target), "wichtig");
    test::expectRefusal({"import", path(PROBE), path(folder_ / "fehlt/ziel.qv")}, "lässt sich nicht anlegen",
                        folder_.path());
}

TEST_F(ImportOfTheSample, ReplacesARegisterWhenTold)
{
    const std::string target = path(folder_ / "ziel.qv");
    ASSERT_EQ(runCommand({"create", target}).result, tools::GOOD);
    ASSERT_EQ(runCommand({"import", path(PROBE), target, "--replace"}).result, tools::GOOD);
    const auto truth = nlohmann::json::parse(std::ifstream(SAMPLES / "werk-a.truth.json"));
    for (const auto& [table, should] : truth["tables"].items())
        EXPECT_EQ(rows(target, "Select Count(*) From " + table)[1][0], should["rows"]) << table;
    EXPECT_EQ(entries(folder_.path()), 1U);
}

} // namespace
} // namespace quelvarn::test
