#pragma once

#include "base/file_path.h"
#include "tools/commands.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

namespace quelvarn::test {

struct Call
{
    int result;
    std::string out;
    std::string log;
};

// As the command line does it.
inline Call runCommand(const std::vector<std::string>& words)
{
    std::ostringstream out;
    std::ostringstream log;
    tools::Console console{out, log};
    const int result = tools::execute(words, console);
    return {result, out.str(), log.str()};
}

// Rows of a SELECT, the names of the columns first.
inline std::vector<nlohmann::json> rows(const std::string& target, const std::string& sql)
{
    const Call call = runCommand({"query", target, sql, "--json"});
    EXPECT_EQ(call.result, tools::GOOD) << sql << '\n' << call.log;
    std::vector<nlohmann::json> rows;
    std::istringstream stream(call.out);
    for (std::string row; std::getline(stream, row);)
        rows.push_back(nlohmann::json::parse(row));
    return rows;
}

// With "/" on every system, as drivers of this one want it.
inline std::string path(const std::filesystem::path& file)
{
    return utf8FromPath(file.generic_u8string());
}

} // namespace quelvarn::test
