#include "base/text.h"
#include "base/utf8.h"
#include "base/windows_path.h"

#include <gtest/gtest.h>

using namespace quelvarn;

TEST(Utf8, TakesEachBrokenByteAsOneCharacter)
{
    struct
    {
        const char* bytes;
        std::u32string characters;
    } const cases[] = {
        {"aä€😀", U"aä€😀"},
        {"\xC3", U"\xFFFD"},
        {"\xC3x", U"\xFFFDx"},
        {"\x80\xBF", U"\xFFFD\xFFFD"},
        {"\xC0\x80", U"\xFFFD\xFFFD"},                     // a longer way to write NUL
        {"\xED\xA0\x80", U"\xFFFD\xFFFD\xFFFD"},           // half of a pair
        {"\xF4\x90\x80\x80", U"\xFFFD\xFFFD\xFFFD\xFFFD"}, // beyond the last character
        {"\xE2\x82", U"\xFFFD\xFFFD"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(toUtf32(c.bytes), c.characters) << c.bytes;
        EXPECT_EQ(countCharacters(c.bytes), c.characters.size());
    }
    EXPECT_EQ(toUtf8(U"aä€😀"), "aä€😀");
}

TEST(Utf8, CutsBetweenCharacters)
{
    EXPECT_EQ(leftCharacters("Größe", 3), "Grö");
    EXPECT_EQ(rightCharacters("Größe", 3), "öße");
    EXPECT_EQ(leftCharacters("ä", 5), "ä");
    EXPECT_EQ(rightCharacters("ä", 5), "ä");
    EXPECT_EQ(rightCharacters("ä", 0), "");
}

TEST(Windows1252, RoundTripsEveryByteAndMarksTheRest)
{
    EXPECT_EQ(toWindows1252("Größe 5€ „x“ – ß"), "Gr\xF6\xDF"
                                                 "e 5\x80 \x84x\x93 \x96 \xDF");
    EXPECT_EQ(toWindows1252("Ж→ä"), "??\xE4");
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(toWindows1252(fromWindows1252(all)), all);
}

TEST(Text, CutsReplacesAndJoins)
{
    EXPECT_EQ(trim(" \ta b\r\n"), "a b");
    EXPECT_EQ(trim("  "), "");
    EXPECT_EQ(trimRightBlanks(" a \t  "), " a \t");
    EXPECT_EQ(replaceAll("a**b*", "*", "%%"), "a%%%%b%%");
    EXPECT_EQ(replaceAll("abc", "", "x"), "abc");
    EXPECT_EQ(split(";a;;b", ';'), (std::vector<std::string>{"", "a", "", "b"}));
    EXPECT_EQ(split("", ';'), std::vector<std::string>{""});
    EXPECT_EQ(join({"a", "b"}, ", "), "a, b");
    EXPECT_EQ(lines({"eins", "", "zwei"}), "eins\n\nzwei");
    EXPECT_TRUE(startsWithIgnoringCase("Übersicht.par", "üBER"));
    EXPECT_FALSE(startsWithIgnoringCase("Über", "Übersicht"));
}

TEST(Text, SortsBlindToCase)
{
    std::vector<std::string> texts = {"b", "Ä", "C", "a", "z", "B", "ä", "A"};
    SortiereTexte(texts);
    EXPECT_EQ(texts, (std::vector<std::string>{"A", "a", "B", "b", "C", "z", "Ä", "ä"}));
}

TEST(Text, BuildsConditions)
{
    EXPECT_EQ(FeldGleichWert("DokuBez", "A'1"), "DokuBez = 'A'1'");
    EXPECT_EQ(NameLike("Dateiname", "x%"), "Dateiname Like 'x%'");
    EXPECT_EQ(NameLike("filename", "x"), "filename Like 'x'");
    EXPECT_EQ(NameLike("Titel", ""), "DokuBez Like ''");
    EXPECT_EQ(NameLikeNichtLeer("filename", ""), "");
    EXPECT_EQ(NameLikeNichtLeer("filename", "a"), "filename Like 'a'");
}

TEST(WindowsPath, CutsAtTheLastBackslash)
{
    struct
    {
        const char* documentPath;
        const char* folder;
        const char* name;
        const char* extension;
        int code;
    } const cases[] = {
        {"W:\\Konstruktion\\x.PAR", "W:\\Konstruktion", "x.PAR", "par", 1},
        {"W:\\x.dft", "W:", "x.dft", "dft", 2},
        {"x.asm", "", "x.asm", "asm", 3},
        {"\\x.psm", "", "x.psm", "psm", 4},
        {"C:\\Ordner\\", "C:\\Ordner", "", "er\\", 0},
        {"a.Pwd", "", "a.Pwd", "pwd", 6},
        {"ab", "", "ab", "", 0},
        {"", "", "", "", 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Ordnername(c.documentPath), c.folder) << c.documentPath;
        EXPECT_EQ(DateiName(c.documentPath), c.name) << c.documentPath;
        EXPECT_EQ(extensionOf(c.documentPath), c.extension) << c.documentPath;
        EXPECT_EQ(fileTypeCode(c.documentPath), c.code) << c.documentPath;
    }
    EXPECT_EQ(withExtension("W:\\Größe.dft", "tif"), "W:\\Größe.tif");
}
