#include "base/runtime_error.h"
#include "fakes/fake_ports.h"
#include "platform/file_rules.h"

using namespace quelvarn;

namespace {

struct InMemory : FileWorld
{
    FakeClock clock;
    FakeFiles own{clock};
    Files& files() override { return own; }
};

std::string names(const std::vector<FolderEntry>& content)
{
    std::string result;
    for (const FolderEntry& entry : content)
        result += entry.folder ? "[" + entry.name + "]" : "<" + entry.name + ">";
    return result;
}

} // namespace

TEST_P(FileRules, PathsAreBlindToCase)
{
    files_.createFolder("W:\\Bögen");
    files_.write("W:\\Bögen\\Welle.PAR", "1");
    EXPECT_TRUE(files_.fileExists("w:\\BÖGEN\\welle.par"));
    EXPECT_TRUE(files_.folderExists("w:/bögen/"));
    EXPECT_TRUE(files_.folderExists("W:"));
    EXPECT_TRUE(files_.folderExists("W:\\"));
    EXPECT_FALSE(files_.fileExists("W:\\Bögen"));
    EXPECT_FALSE(files_.folderExists("W:\\Bögen\\Welle.PAR"));
    EXPECT_FALSE(files_.folderExists("Q:"));
    EXPECT_FALSE(files_.fileExists(""));

    files_.write("W:\\BÖGEN\\WELLE.par", "zwei");
    EXPECT_EQ(names(files_.content("w:\\bögen")), "<Welle.PAR>");
    EXPECT_EQ(files_.read("W:\\Bögen\\Welle.PAR"), "zwei");
}

TEST_P(FileRules, ListsByName)
{
    for (const char* folder : {"C:\\b", "C:\\Ärger"})
        files_.createFolder(folder);
    for (const char* file : {"C:\\c.txt", "C:\\Alt.txt", "C:\\b\\tief.txt"})
        files_.write(file, "");
    EXPECT_EQ(names(files_.content("C:\\")), "<Alt.txt>[Ärger][b]<c.txt>");
    EXPECT_THROW(files_.content("C:\\fehlt"), RuntimeError);
    EXPECT_THROW(files_.content("Q:\\"), RuntimeError);
}

TEST_P(FileRules, WriteProtectionHoldsAgainstEveryChange)
{
    const std::string documentPath = "W:\\x.par";
    files_.write(documentPath, "alt");
    files_.setReadOnly("w:\\X.PAR", true);
    EXPECT_TRUE(files_.attribute(documentPath)->readOnly);
    EXPECT_THROW(files_.write(documentPath, "neu"), RuntimeError);
    EXPECT_THROW(files_.copy(documentPath, documentPath), RuntimeError);
    EXPECT_THROW(files_.remove(documentPath), RuntimeError);
    EXPECT_EQ(files_.read(documentPath), "alt");

    files_.setReadOnly(documentPath, false);
    EXPECT_FALSE(files_.attribute(documentPath)->readOnly);
    files_.write(documentPath, "neu");
    EXPECT_EQ(files_.attribute(documentPath)->size, 3);
    files_.copy(documentPath, "W:\\Kopie.par");
    files_.remove(documentPath);
    EXPECT_FALSE(files_.fileExists(documentPath));
    EXPECT_EQ(files_.read("W:\\kopie.par"), "neu");
}

TEST_P(FileRules, WhatCannotBeDoneIsAFault)
{
    files_.createFolder("W:\\Ordner");
    EXPECT_THROW(files_.read("W:\\fehlt.par"), RuntimeError);
    EXPECT_THROW(files_.remove("W:\\fehlt.par"), RuntimeError);
    EXPECT_THROW(files_.remove("W:\\Ordner"), RuntimeError);
    EXPECT_THROW(files_.write("W:\\fehlt\\x.par", ""), RuntimeError);
    EXPECT_THROW(files_.write("W:\\Ordner", ""), RuntimeError);
    EXPECT_THROW(files_.write("Q:\\x.par", ""), RuntimeError);
    EXPECT_THROW(files_.copy("W:\\fehlt.par", "W:\\x.par"), RuntimeError);
    EXPECT_THROW(files_.createFolder("W:\\ORDNER"), RuntimeError);
    EXPECT_THROW(files_.createFolder("W:\\fehlt\\tiefer"), RuntimeError);
    EXPECT_THROW(files_.setReadOnly("W:\\fehlt.par", true), RuntimeError);
    EXPECT_FALSE(files_.attribute("W:\\fehlt.par"));
    try {
        files_.read("W:\\fehlt.par");
    } catch (const RuntimeError& fault) {
        EXPECT_EQ(fault.number(), 53);
        EXPECT_EQ(fault.description(), "Datei oder Ordner nicht gefunden: W:\\fehlt.par");
    }
}

INSTANTIATE_TEST_SUITE_P(InMemory, FileRules, testing::Values([] { return std::make_unique<InMemory>(); }));
