#include "base/runtime_error.h"
#include "tools/console.h"
#include "tools/import/linux/jet_text.h"
#include "tools/import/linux/reader_process.h"

#include <csignal>
#include <gtest/gtest.h>
#include <thread>
#include <unistd.h>

namespace quelvarn::tools {
namespace {

using namespace std::chrono_literals;

// Reads to the end and returns the contents, or what was said instead.
std::string outcome(const ReaderProcess::Work& work)
{
    std::string read;
    try {
        ReaderProcess process(work, 300ms);
        for (Packet n = process.next(); n.kind != PacketKind::End; n = process.next())
            read += n.content;
    } catch (const RuntimeError& fault) {
        return fault.what();
    }
    return read;
}

TEST(ReaderProcess, HandsMessagesOverWhole)
{
    const std::string large(5U << 20, 'x');
    EXPECT_EQ(outcome([&](Sender& sender) {
                  sender.send(PacketKind::Rows, "a");
                  sender.send(PacketKind::Rows, "");
                  sender.send(PacketKind::Rows, large);
              }),
              "a" + large);
}

TEST(ReaderProcess, TurnsWhateverGoesWrongIntoOneSentence)
{
    const auto contains = [](const std::string& text, std::string_view part) {
        EXPECT_NE(text.find(part), std::string::npos) << text;
    };
    contains(outcome([](Sender&) { throw toolFault("Die Seite fehlt."); }), "Die Seite fehlt.");
    contains(outcome([](Sender&) { raise(SIGKILL); }), "gescheitert");
    contains(outcome([](Sender&) { _exit(0); }), "gescheitert");
    contains(outcome([](Sender&) { std::this_thread::sleep_for(1h); }), "kommt seit 1 Sekunden nicht voran");
    contains(outcome([](Sender& sender) {
                 // A length beyond every bound.
                 sender.send(PacketKind::Rows, "a");
                 (void)!write(3, "\xFF\xFF\xFF\xFFR", 5);
                 std::this_thread::sleep_for(1h);
             }),
             "gescheitert");
}

TEST(ReaderProcess, KeepsNothingOfTheParentOpen)
{
    EXPECT_EQ(outcome([](Sender& sender) {
                  int open = 0;
                  for (int channel = 4; channel < 64; ++channel)
                      open += lseek(channel, 0, SEEK_CUR) >= 0 || errno != EBADF ? 1 : 0;
                  sender.send(PacketKind::Rows, std::to_string(open));
              }),
              "0");
}

TEST(JetText, DecodesPlainAndCompressedTexts)
{
    using namespace std::string_view_literals;
    const std::pair<std::string_view, std::string_view> cases[] = {
        {""sv, ""},
        {"A\0\xFC\0"sv, "Aü"},
        {"\xFF\xFE"
         "Gr\xF6\xDF"
         "e"sv,
         "Größe"},
        {"\xFF\xFE"
         "x\0\x3B\x04\0y"sv,
         "xлy"},                         // Zero switches to two bytes and back.
        {"\x3D\xD8\x00\xDE!\0"sv, "😀!"}, // A surrogate pair is one character.
        {"\x3D\xD8!\0"sv, "\uFFFD!"},
        {"A\0B"sv, "A"}, // Half a character at the end.
    };
    for (const auto& [bytes, expected] : cases) {
        std::string utf8 = "alt";
        decodeJet4(bytes, utf8);
        EXPECT_EQ(utf8, expected);
    }
}

} // namespace
} // namespace quelvarn::tools
