#pragma once

#include "database/connection.h"
#include "database/recordset.h"

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace quelvarn {

inline constexpr std::string_view OWNER_ALL = "!QV_Ini"; // Feld1 of settings for the whole installation.
inline constexpr std::string_view NOT_GIVEN = "Keine Angabe";

// The rows of an owner's group, or of one key in it.
sql::ExpressionPointer iniRows(std::string_view owner, std::string_view group, std::string_view key = {});

// The rows of Ini as one step of the start reads and mends them. The first write opens a transaction, which
// commit ends; without that call everything written since is taken back. What is written because rows were not
// there, or were others, is looked at behind writeAlone: another copy of the same user may write them at this moment.
class IniRows
{
public:
    explicit IniRows(Connection& connection) : connection_(connection) {}

    // The rows of an owner's group, or of one key in it; they can be changed.
    Recordset rows(std::string_view owner, std::string_view group, std::string_view key = {});
    // The same rows, these columns of them only, each distinct row once.
    Recordset distinct(std::initializer_list<std::string_view> columns, std::string_view owner, std::string_view group,
                       std::string_view key = {});
    // The row that holds the switch for events of the CAD program.
    Recordset activeQuelvarn(std::string_view user);
    // The rows of the user's search texts by their keys, the oldest first; also rows of no key.
    Recordset searchTexts(std::string_view user);
    // Any SELECT.
    Recordset read(sql::Select select);

    // A new row with Feld1, Feld2, ... as far as given; the others stay Null.
    void append(std::initializer_list<std::string_view> fields);
    // Writes one field of the current row, unless it says so already.
    void update(Recordset& row, std::string_view field, std::string_view value);
    void updateAll(Recordset& rows, std::string_view field, std::string_view value);
    void remove(Recordset& rows);
    void commit();

    // From here on nothing is written, but wantsToWrite tells whether it would have been.
    void lookOnly();
    bool wantsToWrite() const { return wantsToWrite_; }
    // Opens the transaction at once, and waits for others who do the same with this table.
    void writeAlone();

private:
    // False when nothing is to be written.
    bool begin();

    Connection& connection_;
    std::optional<Transaction> transaction_;
    bool lookOnly_ = false;
    bool wantsToWrite_ = false;
};

// A text that must be there: Null throws RuntimeError 94.
std::string requiredText(const Recordset& row, std::string_view field);
// "" for Null.
std::string textOrEmpty(const Recordset& row, std::string_view field);
inline constexpr std::size_t SEARCH_TEXT_COUNT = 8;
// The key of a search text by its number, "Text0" to "Text7", and the number of a key; nothing for any other text.
std::string searchTextName(std::size_t number);
std::optional<std::size_t> searchTextKey(std::string_view name);
// Numbers of settings are small ones, of 16 bits; others count as no number. Nothing, or 0, for what is none.
std::optional<int> findNumber(const Recordset& row, std::string_view field);
int numberOrZero(const Recordset& row, std::string_view field);

} // namespace quelvarn
