#pragma once

#include "database/connection.h"
#include "database/recordset.h"

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace quelvarn {

inline constexpr std::string_view EIGENTUEMER_ALLE = "!QV_Ini"; // Feld1 of settings for the whole installation.
inline constexpr std::string_view KEINE_ANGABE = "Keine Angabe";

// The rows of an owner's group, or of one key in it.
sql::AusdruckZeiger iniRows(std::string_view owner, std::string_view group, std::string_view key = {});

// The rows of Ini as one step of the start reads and mends them. The first write opens a transaction, which
// schliesseAb ends; without that call everything written since is taken back. What is written because rows were not
// there, or were others, is looked at behind writeAlone: another copy of the same user may write them at this moment.
class IniZeilen
{
public:
    explicit IniZeilen(Connection& verbindung) : verbindung_(verbindung) {}

    // The rows of an owner's group, or of one key in it; they can be changed.
    Recordset zeilen(std::string_view eigentuemer, std::string_view gruppe, std::string_view schluessel = {});
    // The same rows, these columns of them only, each distinct row once.
    Recordset verschiedene(std::initializer_list<std::string_view> spalten, std::string_view eigentuemer,
                           std::string_view gruppe, std::string_view schluessel = {});
    // The row that holds the switch for events of the CAD program.
    Recordset activeQuelvarn(std::string_view user);
    // The rows of the user's search texts by their keys, the oldest first; also rows of no key.
    Recordset suchtexte(std::string_view anwender);
    // Any SELECT.
    Recordset lese(sql::Select select);

    // A new row with Feld1, Feld2, ... as far as given; the others stay Null.
    void fuegeAn(std::initializer_list<std::string_view> felder);
    // Writes one field of the current row, unless it says so already.
    void aendere(Recordset& zeile, std::string_view feld, std::string_view wert);
    void aendereAlle(Recordset& zeilen, std::string_view feld, std::string_view wert);
    void loesche(Recordset& zeilen);
    void schliesseAb();

    // From here on nothing is written, but wantsToWrite tells whether it would have been.
    void lookOnly();
    bool wantsToWrite() const { return wantsToWrite_; }
    // Opens the transaction at once, and waits for others who do the same with this table.
    void writeAlone();

private:
    // False when nothing is to be written.
    bool beginne();

    Connection& verbindung_;
    std::optional<Transaktion> transaktion_;
    bool lookOnly_ = false;
    bool wantsToWrite_ = false;
};

// A text that must be there: Null throws Laufzeitfehler 94.
std::string pflichttext(const Recordset& zeile, std::string_view feld);
// "" for Null.
std::string textOderLeer(const Recordset& zeile, std::string_view feld);
inline constexpr std::size_t ANZAHL_SUCHTEXTE = 8;
// The key of a search text by its number, "Text0" to "Text7", and the number of a key; nothing for any other text.
std::string searchTextName(std::size_t number);
std::optional<std::size_t> searchTextKey(std::string_view name);
// Numbers of settings are small ones, of 16 bits; others count as no number. Nothing, or 0, for what is none.
std::optional<int> findNumber(const Recordset& zeile, std::string_view feld);
int zahlOderNull(const Recordset& zeile, std::string_view feld);

} // namespace quelvarn
