#pragma once

#include "database/engine.h"
#include "database/new_database.h"
#include "fakes/fake_ports.h"
#include "fakes/temp_folder.h"
#include "session/rights.h"
#include "session/session_state.h"

#include <fstream>
#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quelvarn {

// An empty register in a temporary folder, and the session of a user who sees every status in it.
class TestRegister : public testing::Test
{
protected:
    // With the address of an empty PostgreSQL database the register lies there, and the file names it.
    explicit TestRegister(const std::string& postgres = "")
    {
        engine_ = postgres.empty() ? oeffneSqlite(ordner_ / "Werk.mdb", true) : oeffnePostgres(postgres);
        if (!postgres.empty())
            std::ofstream(ordner_ / "Werk.mdb") << postgres << "\n";
        legeRegisterAn(*engine_);
        session_.database.Verbindung.Open(ordner_ / "Werk.mdb");
        session_.database.DatenbankPfad = "W:\\Werk.mdb";
        session_.database.DatenbankOk = true;
        session_.user.Anwender = "Mueller";
        siehtStati("012345");
    }

    void siehtStati(std::string_view stati)
    {
        session_.rights.Sichtbar = {};
        for (const char status : stati)
            session_.rights.Sichtbar[static_cast<std::size_t>(status - '0')] = 1;
        bildeStatusbereich(session_);
    }

    using Werte = std::initializer_list<std::pair<const char*, Value>>;
    // A row of any table; tables that are open see it when they are opened anew.
    Zeilenschluessel zeile(std::string_view tabelle, const Werte& werte)
    {
        std::vector<sql::Zuweisung> zuweisungen;
        for (const auto& [spalte, wert] : werte)
            zuweisungen.push_back({spalte, wert});
        return engine_->fuegeEin(tabelle, zuweisungen);
    }

    TempFolder ordner_;
    std::shared_ptr<Engine> engine_; // Of its own: rows come as from another program.
    FakePorts welt_;
    Ports ports_ = welt_.ports();
    SessionState session_;
};

} // namespace quelvarn
