#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quelvarn::sql {

constexpr int FEHLER_SYNTAX = -2147217900;

// A column as it is written: with the table in front ("Ini.Feld1") or without.
struct Spaltenname
{
    std::string tabelle;
    std::string spalte;
};

// Reads a statement from left to right. Whatever is taken may have blanks in front. Cheap to copy: a copy looks ahead.
class Leser
{
public:
    explicit Leser(std::string_view text) : text_(text) {}

    // Each takes what it asks for and tells whether it stood there.
    bool nimmWort(std::string_view grossgeschrieben);
    bool nimmZeichen(std::string_view zeichen);
    bool nimmName(std::string& name); // Bare or in [brackets]; a bare keyword is no name.
    bool nimmEnde();                  // A closing semicolon may stand in front of the end.

    void verlangeWort(std::string_view grossgeschrieben);
    void verlangeZeichen(std::string_view zeichen);
    void verlangeEnde();
    std::string verlangeName();
    Spaltenname verlangeSpalte();

    // The next character that is no blank, '\0' at the end.
    char vorschau();
    bool stehtVorWort() const; // A letter, digit or point stands right here.
    std::size_t position() const { return position_; }
    void gehezu(std::size_t position) { position_ = position; }
    std::string_view text() const { return text_; }

    [[noreturn]] void syntaxfehler() const { syntaxfehler(position_); }
    [[noreturn]] void syntaxfehler(std::size_t position) const;

private:
    void ueberspringeLeerzeichen();
    std::string_view wort() const; // Letters, digits and '_' from here on; "" when none begins here.

    std::string_view text_;
    std::size_t position_ = 0;
};

} // namespace quelvarn::sql
