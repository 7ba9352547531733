#pragma once

#include "base/file_path.h"
#include "tools/commands.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

namespace quelvarn::test {

struct Aufruf
{
    int ergebnis;
    std::string aus;
    std::string meldungen;
};

// As the command line does it.
inline Aufruf rufe(const std::vector<std::string>& worte)
{
    std::ostringstream aus;
    std::ostringstream meldungen;
    tools::Konsole konsole{aus, meldungen};
    const int ergebnis = tools::fuehreAus(worte, konsole);
    return {ergebnis, aus.str(), meldungen.str()};
}

// Rows of a SELECT, the names of the columns first.
inline std::vector<nlohmann::json> zeilen(const std::string& ziel, const std::string& sql)
{
    const Aufruf aufruf = rufe({"query", ziel, sql, "--json"});
    EXPECT_EQ(aufruf.ergebnis, tools::GUT) << sql << '\n' << aufruf.meldungen;
    std::vector<nlohmann::json> zeilen;
    std::istringstream strom(aufruf.aus);
    for (std::string zeile; std::getline(strom, zeile);)
        zeilen.push_back(nlohmann::json::parse(zeile));
    return zeilen;
}

// With "/" on every system, as drivers of this one want it.
inline std::string pfad(const std::filesystem::path& datei)
{
    return utf8FromPath(datei.generic_u8string());
}

} // namespace quelvarn::test
