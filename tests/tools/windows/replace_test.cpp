#include "database/engine.h"
#include "database/new_database.h"
#include "fakes/temp_folder.h"
#include "tools/command_call.h"

#include <gtest/gtest.h>

namespace quelvarn::test {
namespace {

TEST(Ersetzen, LeavesARegisterAloneThatAProgramHasOpen)
{
    TempFolder ordner;
    const std::string ziel = pfad(ordner / "Büro Süd.qv");
    ASSERT_EQ(rufe({"sample", ziel, "--documents", "20"}).ergebnis, tools::GUT);
    const std::string vorher = rufe({"query", ziel, "Select * From PartTabelle"}).aus;
    auto offen = oeffneSqlite(ordner / "Büro Süd.qv", false);
    const Aufruf versuch = rufe({"create", ziel, "--ersetzen"});
    EXPECT_EQ(versuch.ergebnis, tools::FEHLGESCHLAGEN);
    EXPECT_NE(versuch.meldungen.find("Büro Süd.qv' lässt sich nicht ersetzen"), std::string::npos) << versuch.meldungen;
    EXPECT_EQ(rufe({"query", ziel, "Select * From PartTabelle"}).aus, vorher);
    offen.reset();
    EXPECT_EQ(rufe({"create", ziel, "--ersetzen"}).ergebnis, tools::GUT);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(ordner.path()), {}), 1);
}

} // namespace
} // namespace quelvarn::test
