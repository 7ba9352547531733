#include "base/text.h"
#include "tools/commands_fixture.h"
#include "tools/import_fixture.h"

#include <sys/fsuid.h>
#include <unistd.h>

namespace quelvarn::test {
namespace {

constexpr std::size_t SIDE = 4096;
constexpr char DATA_PAGE = 1; // First byte of a page with rows.

// Root may write everywhere: for a while its files are opened as by somebody else.
class WithoutRootsRights
{
public:
    WithoutRootsRights()
    {
        constexpr unsigned nobody = 65534;
        if (geteuid() == 0)
            setfsuid(nobody);
    }
    ~WithoutRootsRights() { setfsuid(geteuid()); }
    WithoutRootsRights(const WithoutRootsRights&) = delete;
    WithoutRootsRights& operator=(const WithoutRootsRights&) = delete;
};

TEST_F(ImportOfTheSample, RefusesADamagedFileWhereverItIsDamaged)
{
    expectRefusal(std::string_view(content_).substr(0, content_.size() - 100), "ist abgeschnitten");
    for (std::size_t pages = 1; pages < content_.size() / SIDE - 1; pages += 97)
        expectRefusal(std::string_view(content_).substr(0, pages * SIDE), "Access-Datei ist");
    int attempts = 0;
    for (std::size_t page = 20; page < content_.size() / SIDE; page += 67) {
        if (content_[page * SIDE] != DATA_PAGE)
            continue;
        std::string damaged = content_;
        std::fill_n(damaged.begin() + static_cast<std::ptrdiff_t>(page * SIDE), SIDE, '\0');
        expectRefusal(damaged, "Access-Datei ist beschädigt");
        ++attempts;
    }
    EXPECT_GT(attempts, 5);
}

TEST_F(ImportOfTheSample, RefusesADatabaseOfAnotherKind)
{
    using namespace std::string_view_literals;
    const std::string fremd = replaceAll(content_, "I\0n\0i\0"sv, "X\0y\0z\0"sv); // In the catalog.
    ASSERT_NE(fremd, content_);
    expectRefusal(fremd, "ist kein Register dieses Programms: die Tabelle Ini fehlt");
}

TEST_F(ImportOfTheSample, LeavesNothingInAFolderThatMayNotBeWritten)
{
    std::filesystem::copy_file(PROBE, source_);
    std::filesystem::create_directory(folder_ / "nurlesen");
    std::filesystem::permissions(folder_ / "nurlesen", std::filesystem::perms(0555));
    const WithoutRootsRights stranger;
    test::expectRefusal({"import", path(source_), path(folder_ / "nurlesen/ziel.qv")},
                        "lässt sich nicht anlegen: In den Ordner", folder_ / "nurlesen");
}

class DamagedSource : public Commands
{};
INSTANTIATE_TEST_SUITE_P(Engines, DamagedSource, ownEngines, engineName);

TEST_P(DamagedSource, KeepsTheOldRegisterWhenReplacingItFails)
{
    ASSERT_EQ(runCommand({"sample", target_, "--documents", "100"}).result, tools::GOOD);
    const std::string before = runCommand({"query", target_, "Select * From PartTabelle Order By DokuBez, RevBez"}).out;
    const auto cut = folder_ / "quelle.mdb";
    std::filesystem::copy_file(PROBE, cut);
    std::filesystem::resize_file(cut, 1930 * SIDE); // Only pages of the last tables are missing.
    EXPECT_EQ(runCommand({"import", path(cut), target_, "--replace"}).result, tools::FAILED);
    EXPECT_EQ(runCommand({"query", target_, "Select * From PartTabelle Order By DokuBez, RevBez"}).out, before);
    EXPECT_EQ(runCommand({"check", target_}).result, tools::GOOD);
}

} // namespace
} // namespace quelvarn::test
