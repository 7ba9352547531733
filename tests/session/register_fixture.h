#pragma once

#include "base/text.h"
#include "database/connection.h"
#include "database/new_database.h"
#include "database/recordset.h"
#include "fakes/fake_ports.h"
#include "fakes/statements.h"
#include "fakes/temp_folder.h"
#include "session/operations.h"
#include "session/program.h"
#include "session/session_state.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quelvarn {

inline constexpr const char* REGISTERPFAD = "W:\\Daten\\werk.mdb";

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
        legeRegisterAn(postgres.empty() ? *oeffneSqlite(datei, true) : *oeffnePostgres(postgres));
        if (!postgres.empty())
            std::ofstream(datei) << postgres << "\n";
        db.Open(datei);
        world.dateien.verbinde(REGISTERPFAD, datei);
        world.dateien.legeAn("W:\\Plot\\x.txt");
        world.dateien.legeAn("W:\\Anderes\\notiz.txt");
        session.database.DatenbankPfad = REGISTERPFAD;
        // What a well kept installation has.
        fuegeEin({"!QV_Ini|Bezeichnung|Projekt|Auftrag|~", "!QV_Ini|Tabelle|Sondertabelle2|Normteile|~",
                  "!QV_Ini|Plot|Pfadname|~|W:\\Plot", "!QV_Ini|OnOff|CheckInOut|1|~", "!QV_Ini|OnOff|Forward|1|~",
                  "!QV_Ini|WriteDB|Zeitinterval|30000|~", "!QV_Ini|WriteDB|PART|01.03.2004 08:00:00|~",
                  "!QV_Ini|WriteDB|DRAFT|gestern|~", "!QV_Ini|WriteDB|ASSEMB|~|~", "!QV_Ini|WriteDB|WELD|~|~"});
    }

    void fuegeEin(const std::vector<std::string>& zeilen)
    {
        Transaktion zusammen(db);
        for (const std::string& zeile : zeilen) {
            std::vector<sql::Zuweisung> werte;
            for (const std::string& feld : split(zeile, '|'))
                werte.push_back({"Feld" + std::to_string(werte.size() + 1), feld == "~" ? Value() : Value(feld)});
            db.engine().fuegeEin("Ini", werte);
        }
        zusammen.schliesseAb();
    }
    void loesche(const std::string& bedingung) { db.Execute(test::statement("DELETE FROM Ini WHERE " + bedingung)); }

    // Sorted: rows come in no order of their own.
    std::vector<std::string> iniZeilen(const std::string& bedingung)
    {
        Recordset zeilen;
        zeilen.Open(test::query("SELECT * FROM Ini WHERE " + bedingung), db);
        std::vector<std::string> texte;
        for (; !zeilen.Eof(); zeilen.MoveNext()) {
            std::vector<std::string> felder;
            for (const char* feld : {"Feld1", "Feld2", "Feld3", "Feld4", "Feld5"})
                felder.push_back(istNull(zeilen.Feld(feld)) ? "~" : zeilen.Text(feld));
            texte.push_back(join(felder, "|"));
        }
        std::sort(texte.begin(), texte.end());
        return texte;
    }

    // The user's first start, with its welcome.
    void meldeAn()
    {
        world.meldungen.antworte();
        ASSERT_TRUE(Hauptprogramm(session, ports));
        session.database.DatenbankOk = true;
        world.meldungen.gezeigt.clear();
    }

    TempFolder ordner;
    std::filesystem::path datei = ordner / "werk.mdb";
    Connection db;
    FakePorts world;
    Ports ports = world.ports();
    Operations operations{ports};
    SessionState session;
};

} // namespace quelvarn
