#include "fakes/temp_folder.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <gmock/gmock.h>
#include <sys/wait.h>

namespace quelvarn {
namespace {

using ::testing::AllOf;
using ::testing::AnyOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Matcher;
using ::testing::StartsWith;

struct Outcome
{
    int exitCode = 0;
    std::string output; // Of both kinds.
};

Outcome shell(const std::string& command)
{
    Outcome outcome;
    FILE* pipe = popen(("{ " + command + "; } 2>&1").c_str(), "r");
    std::array<char, 4096> part{};
    for (std::size_t count = 0; (count = fread(part.data(), 1, part.size(), pipe)) > 0;)
        outcome.output.append(part.data(), count);
    const int status = pclose(pipe);
    outcome.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return outcome;
}

const std::string NO_SCREEN = "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM ";

TEST(Program, AnswersACallWithoutAScreen)
{
    const auto wrong = AllOf(StartsWith("quelvarn: unbekannte"), HasSubstr("Aufruf: quelvarn"));
    const auto noScreen = StartsWith("Quelvarn kann kein Fenster öffnen: Es gibt hier keine Anzeige.\n");
    const struct
    {
        std::string environment, words;
        int exitCode;
        Matcher<std::string> output;
    } cases[] = {
        {"", "--help", 0, AllOf(StartsWith("Aufruf: quelvarn [--help] [--version]\n"), HasSubstr("zeigt die Version"))},
        {"", "-style fusion --help", 0, StartsWith("Aufruf: ")},
        {"", "--version", 0, "Quelvarn 2.0.0\n"},
        {"", "--gibt-es-nicht", 2, AllOf(wrong, HasSubstr("Option: gibt-es-nicht\n"))},
        {"", "W:\\\\Werk.mdb", 2, AllOf(wrong, HasSubstr("Argument: W:\\Werk.mdb\n"))},
        {"", "", 1, noScreen},
        {"DISPLAY=:987", "", 1, AllOf(noScreen, HasSubstr(":987"))},
        {"QT_QPA_PLATFORM=keine", "", 1, AllOf(noScreen, HasSubstr("\"keine\""))},
    };
    for (const auto& c : cases) {
        const Outcome outcome = shell(NO_SCREEN + c.environment + " " QUELVARN_PROGRAM " " + c.words);
        EXPECT_EQ(outcome.exitCode, c.exitCode) << c.words;
        EXPECT_THAT(outcome.output, c.output) << c.words;
    }
}

// It is up when it ends in its own way on the first signal and had no box to show before.
TEST(Program, StartsWhereItsCaptionCannotBeTold)
{
    const TempFolder folder;
    const std::string home = "HOME=" + folder.path().string() + " XDG_DATA_HOME= QT_QPA_PLATFORM=offscreen ";
    const std::string start = "timeout --preserve-status 2 " QUELVARN_PROGRAM;
    std::ofstream(folder / "datei") << "kein Ordner";
    for (const std::string& command : {
             home + "XDG_RUNTIME_DIR=" + (folder / "datei").string() + " " + start,
             home + "XDG_RUNTIME_DIR=/proc/fehlt " + start,
             "trap '' XFSZ; ulimit -f 0; " + home + "XDG_RUNTIME_DIR=" + (folder / "voll").string() + " " + start,
         }) {
        const Outcome outcome = shell(command);
        EXPECT_EQ(outcome.exitCode, 0) << command;
        EXPECT_THAT(outcome.output, Matcher<std::string>(AnyOf(IsEmpty(), StartsWith("QStandardPaths:")))) << command;
    }
}

} // namespace
} // namespace quelvarn
