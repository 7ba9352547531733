#include "base/text.h"
#include "tools/commands_fixture.h"
#include "tools/import_fixture.h"

#include <sys/fsuid.h>
#include <unistd.h>

namespace quelvarn::test {
namespace {

constexpr std::size_t SEITE = 4096;
constexpr char DATENSEITE = 1; // First byte of a page with rows.

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

TEST_F(ImportDerProbe, RefusesADamagedFileWhereverItIsDamaged)
{
    erwarteAbsage(std::string_view(inhalt_).substr(0, inhalt_.size() - 100), "ist abgeschnitten");
    for (std::size_t seiten = 1; seiten < inhalt_.size() / SEITE - 1; seiten += 97)
        erwarteAbsage(std::string_view(inhalt_).substr(0, seiten * SEITE), "Access-Datei ist");
    int versuche = 0;
    for (std::size_t seite = 20; seite < inhalt_.size() / SEITE; seite += 67) {
        if (inhalt_[seite * SEITE] != DATENSEITE)
            continue;
        std::string beschaedigt = inhalt_;
        std::fill_n(beschaedigt.begin() + static_cast<std::ptrdiff_t>(seite * SEITE), SEITE, '\0');
        erwarteAbsage(beschaedigt, "Access-Datei ist beschädigt");
        ++versuche;
    }
    EXPECT_GT(versuche, 5);
}

TEST_F(ImportDerProbe, RefusesADatabaseOfAnotherKind)
{
    using namespace std::string_view_literals;
    const std::string fremd = replaceAll(inhalt_, "I\0n\0i\0"sv, "X\0y\0z\0"sv); // In the catalog.
    ASSERT_NE(fremd, inhalt_);
    erwarteAbsage(fremd, "ist kein Register dieses Programms: die Tabelle Ini fehlt");
}

TEST_F(ImportDerProbe, LeavesNothingInAFolderThatMayNotBeWritten)
{
    std::filesystem::copy_file(PROBE, quelle_);
    std::filesystem::create_directory(ordner_ / "nurlesen");
    std::filesystem::permissions(ordner_ / "nurlesen", std::filesystem::perms(0555));
    const WithoutRootsRights stranger;
    test::erwarteAbsage({"import", pfad(quelle_), pfad(ordner_ / "nurlesen/ziel.qv")},
                        "lässt sich nicht anlegen: In den Ordner", ordner_ / "nurlesen");
}

class BeschaedigteQuelle : public Befehle
{};
INSTANTIATE_TEST_SUITE_P(Engines, BeschaedigteQuelle, eigeneEngines, engineName);

TEST_P(BeschaedigteQuelle, KeepsTheOldRegisterWhenReplacingItFails)
{
    ASSERT_EQ(rufe({"sample", ziel_, "--documents", "100"}).ergebnis, tools::GUT);
    const std::string vorher = rufe({"query", ziel_, "Select * From PartTabelle Order By DokuBez, RevBez"}).aus;
    const auto abgeschnitten = ordner_ / "quelle.mdb";
    std::filesystem::copy_file(PROBE, abgeschnitten);
    std::filesystem::resize_file(abgeschnitten, 1930 * SEITE); // Only pages of the last tables are missing.
    EXPECT_EQ(rufe({"import", pfad(abgeschnitten), ziel_, "--ersetzen"}).ergebnis, tools::FEHLGESCHLAGEN);
    EXPECT_EQ(rufe({"query", ziel_, "Select * From PartTabelle Order By DokuBez, RevBez"}).aus, vorher);
    EXPECT_EQ(rufe({"check", ziel_}).ergebnis, tools::GUT);
}

} // namespace
} // namespace quelvarn::test
