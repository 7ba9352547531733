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
std::string ausgang(const Leseprozess::Arbeit& arbeit)
{
    std::string gelesen;
    try {
        Leseprozess prozess(arbeit, 300ms);
        for (Nachricht n = prozess.naechste(); n.art != Nachrichtenart::Ende; n = prozess.naechste())
            gelesen += n.inhalt;
    } catch (const Laufzeitfehler& fehler) {
        return fehler.what();
    }
    return gelesen;
}

TEST(Leseprozess, HandsMessagesOverWhole)
{
    const std::string gross(5U << 20, 'x');
    EXPECT_EQ(ausgang([&](Sender& sender) {
                  sender.sende(Nachrichtenart::Zeilen, "a");
                  sender.sende(Nachrichtenart::Zeilen, "");
                  sender.sende(Nachrichtenart::Zeilen, gross);
              }),
              "a" + gross);
}

TEST(Leseprozess, TurnsWhateverGoesWrongIntoOneSentence)
{
    const auto enthaelt = [](const std::string& text, std::string_view teil) {
        EXPECT_NE(text.find(teil), std::string::npos) << text;
    };
    enthaelt(ausgang([](Sender&) { throw werkzeugfehler("Die Seite fehlt."); }), "Die Seite fehlt.");
    enthaelt(ausgang([](Sender&) { raise(SIGKILL); }), "gescheitert");
    enthaelt(ausgang([](Sender&) { _exit(0); }), "gescheitert");
    enthaelt(ausgang([](Sender&) { std::this_thread::sleep_for(1h); }), "kommt seit 1 Sekunden nicht voran");
    enthaelt(ausgang([](Sender& sender) {
                 // A length beyond every bound.
                 sender.sende(Nachrichtenart::Zeilen, "a");
                 (void)!write(3, "\xFF\xFF\xFF\xFFR", 5);
                 std::this_thread::sleep_for(1h);
             }),
             "gescheitert");
}

TEST(Leseprozess, KeepsNothingOfTheParentOpen)
{
    EXPECT_EQ(ausgang([](Sender& sender) {
                  int offene = 0;
                  for (int kanal = 4; kanal < 64; ++kanal)
                      offene += lseek(kanal, 0, SEEK_CUR) >= 0 || errno != EBADF ? 1 : 0;
                  sender.sende(Nachrichtenart::Zeilen, std::to_string(offene));
              }),
              "0");
}

TEST(JetText, DecodesPlainAndCompressedTexts)
{
    using namespace std::string_view_literals;
    const std::pair<std::string_view, std::string_view> faelle[] = {
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
    for (const auto& [bytes, erwartet] : faelle) {
        std::string utf8 = "alt";
        dekodiereJet4(bytes, utf8);
        EXPECT_EQ(utf8, erwartet);
    }
}

} // namespace
} // namespace quelvarn::tools
