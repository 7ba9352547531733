#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quelvarn::sql {

constexpr int FAULT_SYNTAX = -2147217900;

// A column as it is written: with the table in front ("Ini.Feld1") or without.
struct ColumnName
{
    std::string table;
    std::string column;
};

// Reads a statement from left to right. Whatever is taken may have blanks in front. Cheap to copy: a copy looks ahead.
class Reader
{
public:
    explicit Reader(std::string_view text) : text_(text) {}

    // Each takes what it asks for and tells whether it stood there.
    bool takeWord(std::string_view upperCase);
    bool takeCharacter(std::string_view character);
    bool takeName(std::string& name); // Bare or in [brackets]; a bare keyword is no name.
    bool takeEnd();                   // A closing semicolon may stand in front of the end.

    void requireWord(std::string_view upperCase);
    void requireCharacter(std::string_view character);
    void requireEnd();
    std::string requireName();
    ColumnName requireColumn();

    // The next character that is no blank, '\0' at the end.
    char preview();
    bool standsBeforeWord() const; // A letter, digit or point stands right here.
    std::size_t position() const { return position_; }
    void goTo(std::size_t position) { position_ = position; }
    std::string_view text() const { return text_; }

    [[noreturn]] void syntaxFault() const { syntaxFault(position_); }
    [[noreturn]] void syntaxFault(std::size_t position) const;

private:
    void skipBlank();
    std::string_view word() const; // Letters, digits and '_' from here on; "" when none begins here.

    std::string_view text_;
    std::size_t position_ = 0;
};

} // namespace quelvarn::sql
