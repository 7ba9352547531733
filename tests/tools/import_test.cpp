#include "base/text.h"
#include "fakes/temp_folder.h"
#include "tools/aufruf.h"

#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace quelvarn::test {
namespace {

const std::filesystem::path PROBE = std::filesystem::path(QUELVARN_SHARED) / "samples/werk-a.mdb";
constexpr std::size_t SEITE = 4096;
constexpr char DATENSEITE = 1; // First byte of a page with rows.

void schreibe(const std::filesystem::path& datei, std::string_view inhalt)
{
    std::ofstream(datei, std::ios::binary) << inhalt;
}

std::string lies(const std::filesystem::path& datei)
{
    std::ifstream strom(datei, std::ios::binary);
    return {std::istreambuf_iterator<char>(strom), {}};
}

std::size_t eintraege(const std::filesystem::path& ordner)
{
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(ordner), {}));
}

// Nothing but one sentence comes of it.
void erwarteAbsage(const std::vector<std::string>& aufruf, std::string_view teil,
                   const std::filesystem::path& zielordner)
{
    const auto vorher = eintraege(zielordner);
    const Aufruf ergebnis = rufe(aufruf);
    EXPECT_EQ(ergebnis.ergebnis, tools::FEHLGESCHLAGEN) << teil;
    EXPECT_EQ(ergebnis.aus, "");
    EXPECT_NE(ergebnis.meldungen.find(teil), std::string::npos) << ergebnis.meldungen;
    EXPECT_EQ(std::ranges::count(ergebnis.meldungen, '\n'), 1) << ergebnis.meldungen;
    EXPECT_EQ(eintraege(zielordner), vorher) << teil;
}

class Import : public ::testing::Test
{
protected:
    void erwarteAbsage(std::string_view inhalt, std::string_view teil)
    {
        schreibe(quelle_, inhalt);
        test::erwarteAbsage({"import", pfad(quelle_), pfad(ordner_ / "ziel.qv")}, teil, ordner_.path());
    }

    TempFolder ordner_;
    std::filesystem::path quelle_ = ordner_ / "quelle.mdb";
};

TEST_F(Import, RefusesSourcesThatAreNoAccessFile)
{
    erwarteAbsage("Liebe Kollegen,\nanbei die Datenbank.\n", "ist keine Access-Datenbank");
    erwarteAbsage("", "ist leer");
    using namespace std::string_view_literals;
    erwarteAbsage("\0\1\0\0Standard Jet DB"sv, "ist abgeschnitten");
    std::filesystem::remove(quelle_);
    test::erwarteAbsage({"import", pfad(quelle_), pfad(ordner_ / "ziel.qv")}, "gibt es nicht", ordner_.path());
    test::erwarteAbsage({"import", pfad(ordner_.path()), pfad(ordner_ / "ziel.qv")}, "ist keine Datei", ordner_.path());
}

class ImportDerProbe : public Import
{
protected:
    void SetUp() override
    {
        if (!std::filesystem::exists(PROBE))
            GTEST_SKIP() << "the sample file is not here: " << PROBE;
        inhalt_ = lies(PROBE);
    }

    std::string inhalt_;
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

TEST_F(ImportDerProbe, LeavesATargetAloneThatItMayNotReplace)
{
    const auto ziel = ordner_ / "ziel.qv";
    schreibe(ziel, "wichtig");
    test::erwarteAbsage({"import", pfad(PROBE), pfad(ziel)}, "gibt es schon", ordner_.path());
    test::erwarteAbsage({"import", pfad(PROBE), pfad(ziel), "--ersetzen"}, "ist kein Register", ordner_.path());
    EXPECT_EQ(lies(ziel), "wichtig");
    test::erwarteAbsage({"import", pfad(PROBE), pfad(ordner_ / "fehlt/ziel.qv")}, "lässt sich nicht anlegen",
                        ordner_.path());
    std::filesystem::create_directory(ordner_ / "nurlesen");
    std::filesystem::permissions(ordner_ / "nurlesen", std::filesystem::perms::owner_read);
    if (geteuid() != 0) // Root may write everywhere.
        test::erwarteAbsage({"import", pfad(PROBE), pfad(ordner_ / "nurlesen/ziel.qv")}, "lässt sich nicht anlegen",
                            ordner_.path());
}

TEST_F(ImportDerProbe, ReplacesARegisterWhenTold)
{
    const std::string ziel = pfad(ordner_ / "ziel.qv");
    ASSERT_EQ(rufe({"create", ziel}).ergebnis, tools::GUT);
    ASSERT_EQ(rufe({"import", pfad(PROBE), ziel, "--ersetzen"}).ergebnis, tools::GUT);
    EXPECT_EQ(zeilen(ziel, "Select Count(*) From PartTabelle")[1][0], 1402);
    EXPECT_EQ(eintraege(ordner_.path()), 1U);
}

} // namespace
} // namespace quelvarn::test
