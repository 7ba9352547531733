#pragma once

#include "database/open_engine.h"
#include "fakes/temp_folder.h"
#include "tools/command_call.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>

namespace quelvarn::test {

inline const std::filesystem::path SAMPLES = std::filesystem::path(QUELVARN_TEST_DATA);
inline const std::filesystem::path PROBE = SAMPLES / "werk-a.mdb";

inline void write(const std::filesystem::path& file, std::string_view content)
{
    std::ofstream(file, std::ios::binary) << content;
}

inline std::string read(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline std::size_t entries(const std::filesystem::path& folder)
{
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

// Nothing but one sentence comes of it.
inline void expectRefusal(const std::vector<std::string>& call, std::string_view part,
                          const std::filesystem::path& targetFolder)
{
    const auto before = entries(targetFolder);
    const Call result = runCommand(call);
    EXPECT_EQ(result.result, tools::FAILED) << part;
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.log.find(part), std::string::npos) << result.log;
    EXPECT_EQ(std::ranges::count(result.log, '\n'), 1) << result.log;
    EXPECT_EQ(entries(targetFolder), before) << part;
}

class Import : public ::testing::Test
{
protected:
    void expectRefusal(std::string_view content, std::string_view part)
    {
        write(source_, content);
        test::expectRefusal({"import", path(source_), path(folder_ / "ziel.qv")}, part, folder_.path());
    }

    TempFolder folder_;
    std::filesystem::path source_ = folder_ / "quelle.mdb";
};

class ImportOfTheSample : public Import
{
protected:
    void SetUp() override
    {
#ifdef _WIN32
        if (!openAccess(path(PROBE)))
            GTEST_SKIP() << "no ODBC driver of Access is here";
#endif
        content_ = read(PROBE);
    }

    std::string content_;
};

} // namespace quelvarn::test
