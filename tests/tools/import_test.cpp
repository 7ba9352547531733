#include "tools/import_fixture.h"

namespace quelvarn::test {
namespace {

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

TEST_F(ImportDerProbe, LeavesATargetAloneThatItMayNotReplace)
{
    const auto ziel = ordner_ / "ziel.qv";
    schreibe(ziel, "wichtig");
    test::erwarteAbsage({"import", pfad(PROBE), pfad(ziel)}, "gibt es schon", ordner_.path());
    test::erwarteAbsage({"import", pfad(PROBE), pfad(ziel), "--ersetzen"}, "ist kein Register", ordner_.path());
    EXPECT_EQ(lies(ziel), "wichtig");
    test::erwarteAbsage({"import", pfad(PROBE), pfad(ordner_ / "fehlt/ziel.qv")}, "lässt sich nicht anlegen",
                        ordner_.path());
}

TEST_F(ImportDerProbe, ReplacesARegisterWhenTold)
{
    const std::string ziel = pfad(ordner_ / "ziel.qv");
    ASSERT_EQ(rufe({"create", ziel}).ergebnis, tools::GUT);
    ASSERT_EQ(rufe({"import", pfad(PROBE), ziel, "--ersetzen"}).ergebnis, tools::GUT);
    const auto wahrheit = nlohmann::json::parse(std::ifstream(PROBEN / "werk-a.truth.json"));
    for (const auto& [tabelle, soll] : wahrheit["tables"].items())
        EXPECT_EQ(zeilen(ziel, "Select Count(*) From " + tabelle)[1][0], soll["rows"]) << tabelle;
    EXPECT_EQ(eintraege(ordner_.path()), 1U);
}

} // namespace
} // namespace quelvarn::test
