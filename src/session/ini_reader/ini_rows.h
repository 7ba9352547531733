#pragma once

#include "database/connection.h"
#include "database/recordset.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace quelvarn {

inline constexpr std::string_view EIGENTUEMER_ALLE = "!QV_Ini"; // Feld1 of settings for the whole installation.
inline constexpr std::string_view KEINE_ANGABE = "Keine Angabe";

// The rows of Ini as one step of the start reads and mends them. The first write opens a transaction, which
// schliesseAb ends; without that call everything written since is taken back.
class IniZeilen
{
public:
    explicit IniZeilen(Connection& verbindung) : verbindung_(verbindung) {}

    // The rows of an owner's group, or of one key in it; they can be changed.
    Recordset zeilen(std::string_view eigentuemer, std::string_view gruppe, std::string_view schluessel = {});
    // The same rows, these columns of them only, each distinct row once.
    Recordset verschiedene(std::string_view spalten, std::string_view eigentuemer, std::string_view gruppe,
                           std::string_view schluessel = {});
    // The user's search texts, the oldest first.
    Recordset suchtexte(std::string_view anwender);
    // Any SELECT.
    Recordset lese(std::string_view sql);

    // A new row with Feld1, Feld2, ... as far as given; the others stay Null.
    void fuegeAn(std::initializer_list<std::string_view> felder);
    // Writes one field of the current row, unless it says so already.
    void aendere(Recordset& zeile, std::string_view feld, std::string_view wert);
    void loesche(Recordset& zeilen);
    void schliesseAb();

private:
    void beginne();

    Connection& verbindung_;
    std::optional<Transaktion> transaktion_;
};

// A text that must be there: Null throws Laufzeitfehler 94.
std::string pflichttext(const Recordset& zeile, std::string_view feld);
// "" for Null.
std::string textOderLeer(const Recordset& zeile, std::string_view feld);
// 0 for what is no number.
int zahlOderNull(const Recordset& zeile, std::string_view feld);

} // namespace quelvarn
