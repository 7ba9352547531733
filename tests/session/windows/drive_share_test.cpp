#include "base/runtime_error.h"
#include "fakes/fake_ports.h"
#include "platform/windows/files.h"
#include "platform/windows/world.h"
#include "session/local_settings.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace quelvarn;

// scripts/wine_world.sh maps the share.
TEST(WindowsDrives, AShareAndItsLetterAreTheSamePlace)
{
    const std::string release = "\\\\server\\konstruktion";
    FakePorts world;
    std::vector<Drive>& list = world.drives.drives;
    list = WindowsDrives().list();
    const auto network =
        std::find_if(list.begin(), list.end(), [&](const auto& one) { return one.release == release; });
    if (network == list.end())
        GTEST_SKIP() << "no drive is mapped to " << release;
    EXPECT_EQ(network->entry(), "x: [" + release + "]");
    std::string documentPath = "\\\\SERVER\\Konstruktion\\Größe 1\\Welle.par";
    UniversalNachLaufwerk(documentPath, world.ports());
    EXPECT_EQ(documentPath, "X:\\Größe 1\\Welle.par");

    WindowsFiles files;
    files.write(release + "\\Welle ä.par", "1");
    EXPECT_EQ(files.read("X:\\welle Ä.PAR"), "1");
    files.setReadOnly("X:\\Welle ä.par", true);
    EXPECT_THROW(files.remove(release + "\\Welle ä.par"), RuntimeError);
    files.setReadOnly("X:\\Welle ä.par", false);
    files.copy("//server/konstruktion/Welle ä.par", "X:\\Kopie.par");
    EXPECT_EQ(files.content(release).size(), 2U);
    for (const char* name : {"\\Welle ä.par", "\\Kopie.par"})
        files.remove(release + name);
    EXPECT_FALSE(files.fileExists("X:\\Kopie.par"));
    EXPECT_THROW(files.read("\\\\server\\gibt es nicht\\x.par"), RuntimeError);
}
