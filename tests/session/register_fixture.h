#pragma once

#include "base/text.h"
#include "database/connection.h"
#include "database/new_database.h"
#include "database/open_engine.h"
#include "database/recordset.h"
#include "fakes/fake_ports.h"
#include "fakes/statements.h"
#include "fakes/temp_folder.h"
#include "session/database_start.h"
#include "session/operations.h"
#include "session/session_state.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quelvarn {

inline constexpr const char* REGISTER_PATH = "W:\\Daten\\werk.mdb";

// A session of the user "mueller" in front of a register on disk. Rows of Ini are written as lines,
// "Feld1|Feld2|Feld3|Feld4|Feld5"; "~" is Null.
class RegisterTest : public ::testing::Test
{
protected:
    // With the address of an empty PostgreSQL database the register lies there, and the file names it.
    explicit RegisterTest(const std::string& postgres = "")
    {
        session.user.Anwender = "mueller";
        session.user.Rechner = "CAD-PC-7";
        session.folders.OrdnerSEDokumente = "C:\\SE";
        session.folders.OrdnerDatenbankPfad = "C:";
        createRegister(postgres.empty() ? *openSqlite(file, true) : *openPostgres(postgres));
        if (!postgres.empty())
            std::ofstream(file) << postgres << "\n";
        db.Open(file);
        world.files.connect(REGISTER_PATH, file);
        world.files.create("W:\\Plot\\x.txt");
        world.files.create("W:\\Anderes\\notiz.txt");
        session.database.DatenbankPfad = REGISTER_PATH;
        // What a well kept installation has.
        insert({"!QV_Ini|Bezeichnung|Projekt|Auftrag|~", "!QV_Ini|Tabelle|Sondertabelle2|Normteile|~",
                "!QV_Ini|Plot|Pfadname|~|W:\\Plot", "!QV_Ini|OnOff|CheckInOut|1|~", "!QV_Ini|OnOff|Forward|1|~",
                "!QV_Ini|WriteDB|Zeitinterval|30000|~", "!QV_Ini|WriteDB|PART|01.03.2004 08:00:00|~",
                "!QV_Ini|WriteDB|DRAFT|gestern|~", "!QV_Ini|WriteDB|ASSEMB|~|~", "!QV_Ini|WriteDB|WELD|~|~"});
    }

    void insert(const std::vector<std::string>& rows)
    {
        Transaction together(db);
        for (const std::string& row : rows) {
            std::vector<sql::Assignment> values;
            for (const std::string& field : split(row, '|'))
                values.push_back({"Feld" + std::to_string(values.size() + 1), field == "~" ? Value() : Value(field)});
            db.engine().insert("Ini", values);
        }
        together.commit();
    }
    void remove(const std::string& condition) { db.execute(test::statement("DELETE FROM Ini WHERE " + condition)); }

    // Sorted: rows come in no order of their own.
    std::vector<std::string> iniRows(const std::string& condition)
    {
        Recordset rows;
        rows.Open(test::query("SELECT * FROM Ini WHERE " + condition), db);
        std::vector<std::string> texts;
        for (; !rows.eof(); rows.MoveNext()) {
            std::vector<std::string> fields;
            for (const char* field : {"Feld1", "Feld2", "Feld3", "Feld4", "Feld5"})
                fields.push_back(isNull(rows.field(field)) ? "~" : rows.Text(field));
            texts.push_back(join(fields, "|"));
        }
        std::sort(texts.begin(), texts.end());
        return texts;
    }

    // The user's first start, with its welcome.
    void addListener()
    {
        world.boxes.answer();
        ASSERT_TRUE(Hauptprogramm(session, ports));
        session.database.DatenbankOk = true;
        world.boxes.shown.clear();
    }

    TempFolder folder;
    std::filesystem::path file = folder / "werk.mdb";
    Connection db;
    FakePorts world;
    Ports ports = world.ports();
    Operations operations{ports};
    SessionState session;
};

} // namespace quelvarn
