#pragma once

#include "database/new_database.h"
#include "fakes/temp_folder.h"
#include "tools/command_call.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>

namespace quelvarn::test {

inline const std::filesystem::path PROBEN = std::filesystem::path(QUELVARN_TEST_DATA);
inline const std::filesystem::path PROBE = PROBEN / "werk-a.mdb";

inline void schreibe(const std::filesystem::path& datei, std::string_view inhalt)
{
    std::ofstream(datei, std::ios::binary) << inhalt;
}

inline std::string lies(const std::filesystem::path& datei)
{
    std::ifstream strom(datei, std::ios::binary);
    return {std::istreambuf_iterator<char>(strom), {}};
}

inline std::size_t eintraege(const std::filesystem::path& ordner)
{
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(ordner), {}));
}

// Nothing but one sentence comes of it.
inline void erwarteAbsage(const std::vector<std::string>& aufruf, std::string_view teil,
                          const std::filesystem::path& zielordner)
{
    const auto vorher = eintraege(zielordner);
    const Aufruf ergebnis = rufe(aufruf);
    EXPECT_EQ(ergebnis.ergebnis, tools::FEHLGESCHLAGEN) << teil;
    EXPECT_EQ(ergebnis.aus, "");
    EXPECT_NE(ergebnis.meldungen.find(teil), std::string::npos) << ergebnis.meldungen;
    EXPECT_EQ(std::ranges::count(ergebnis.meldungen, '\n'), 1) << ergebnis.meldungen;
    EXPECT_EQ(eintraege(zielordner), vorher) << teil;
}

class Import : public ::testing::Test
{
protected:
    void erwarteAbsage(std::string_view inhalt, std::string_view teil)
    {
        schreibe(quelle_, inhalt);
        test::erwarteAbsage({"import", pfad(quelle_), pfad(ordner_ / "ziel.qv")}, teil, ordner_.path());
    }

    TempFolder ordner_;
    std::filesystem::path quelle_ = ordner_ / "quelle.mdb";
};

class ImportDerProbe : public Import
{
protected:
    void SetUp() override
    {
#ifdef _WIN32
        if (!oeffneAccess(pfad(PROBE)))
            GTEST_SKIP() << "no ODBC driver of Access is here";
#endif
        inhalt_ = lies(PROBE);
    }

    std::string inhalt_;
};

} // namespace quelvarn::test
