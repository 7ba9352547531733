#pragma once

#include "database/engine.h"
#include "database/new_database.h"
#include "database/open_engine.h"
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
        engine_ = postgres.empty() ? openSqlite(folder_ / "Werk.mdb", true) : openPostgres(postgres);
        if (!postgres.empty())
            std::ofstream(folder_ / "Werk.mdb") << postgres << "\n";
        createRegister(*engine_);
        session_.database.connection.Open(folder_ / "Werk.mdb");
        session_.database.DatenbankPfad = "W:\\Werk.mdb";
        session_.database.DatenbankOk = true;
        session_.user.Anwender = "Mueller";
        seesStatuses("012345");
    }

    void seesStatuses(std::string_view statuses)
    {
        session_.rights.Sichtbar = {};
        for (const char status : statuses)
            session_.rights.Sichtbar[static_cast<std::size_t>(status - '0')] = 1;
        formStatusSection(session_.rights);
    }

    using Values = std::initializer_list<std::pair<const char*, Value>>;
    // A row of any table; tables that are open see it when they are opened anew.
    RowKey row(std::string_view table, const Values& values)
    {
        std::vector<sql::Assignment> assignments;
        for (const auto& [column, value] : values)
            assignments.push_back({column, value});
        return engine_->insert(table, assignments);
    }

    TempFolder folder_;
    std::shared_ptr<Engine> engine_; // Of its own: rows come as from another program.
    FakePorts world_;
    Ports ports_ = world_.ports();
    SessionState session_;
};

} // namespace quelvarn
