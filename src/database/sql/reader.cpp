#include "database/sql/reader.h"

#include "base/runtime_error.h"
#include "base/utf8.h"

#include <algorithm>
#include <array>

namespace quelvarn::sql {
namespace {

constexpr std::string_view LEERZEICHEN = " \t\r\n\f\v";
constexpr std::array<std::string_view, 22> SCHLUESSELWORTE{
    "SELECT", "DISTINCT", "FROM",   "WHERE", "ORDER", "BY",  "ASC", "DESC", "INSERT", "INTO", "VALUES",
    "UPDATE", "SET",      "DELETE", "AND",   "OR",    "NOT", "IN",  "LIKE", "IS",     "NULL", "BETWEEN"};

bool istZiffer(char zeichen)
{
    return zeichen >= '0' && zeichen <= '9';
}

// Every byte beyond ASCII belongs to a letter.
bool istBuchstabe(char zeichen)
{
    return (zeichen >= 'a' && zeichen <= 'z') || (zeichen >= 'A' && zeichen <= 'Z') || zeichen == '_' ||
           static_cast<unsigned char>(zeichen) >= 0x80;
}

bool istSchluesselwort(std::string_view wort, std::string_view grossgeschrieben)
{
    return std::ranges::equal(wort, grossgeschrieben, [](char eins, char gross) {
        return eins == gross || (eins >= 'a' && eins <= 'z' && eins - 'a' + 'A' == gross);
    });
}

} // namespace

void Leser::ueberspringeLeerzeichen()
{
    position_ = std::min(text_.find_first_not_of(LEERZEICHEN, position_), text_.size());
}

std::string_view Leser::wort() const
{
    std::size_t ende = position_;
    if (ende < text_.size() && istBuchstabe(text_[ende])) {
        while (ende < text_.size() && (istBuchstabe(text_[ende]) || istZiffer(text_[ende])))
            ++ende;
    }
    return text_.substr(position_, ende - position_);
}

bool Leser::nimmWort(std::string_view grossgeschrieben)
{
    ueberspringeLeerzeichen();
    if (!istSchluesselwort(wort(), grossgeschrieben))
        return false;
    position_ += grossgeschrieben.size();
    return true;
}

bool Leser::nimmZeichen(std::string_view zeichen)
{
    ueberspringeLeerzeichen();
    if (!text_.substr(position_).starts_with(zeichen))
        return false;
    position_ += zeichen.size();
    return true;
}

bool Leser::nimmName(std::string& name)
{
    ueberspringeLeerzeichen();
    if (position_ < text_.size() && text_[position_] == '[') {
        const std::size_t ende = text_.find_first_of("[]", position_ + 1);
        if (ende == std::string_view::npos || text_[ende] == '[' || ende == position_ + 1)
            return false;
        name = text_.substr(position_ + 1, ende - position_ - 1);
        position_ = ende + 1;
        return true;
    }
    const std::string_view gefunden = wort();
    const auto gleich = [&](std::string_view schluesselwort) { return istSchluesselwort(gefunden, schluesselwort); };
    if (gefunden.empty() || std::ranges::any_of(SCHLUESSELWORTE, gleich))
        return false;
    name = gefunden;
    position_ += gefunden.size();
    return true;
}

bool Leser::nimmEnde()
{
    const std::size_t anfang = position_;
    nimmZeichen(";");
    ueberspringeLeerzeichen();
    if (position_ == text_.size())
        return true;
    position_ = anfang;
    return false;
}

void Leser::verlangeWort(std::string_view grossgeschrieben)
{
    if (!nimmWort(grossgeschrieben))
        syntaxfehler();
}

void Leser::verlangeZeichen(std::string_view zeichen)
{
    if (!nimmZeichen(zeichen))
        syntaxfehler();
}

void Leser::verlangeEnde()
{
    if (!nimmEnde())
        syntaxfehler();
}

std::string Leser::verlangeName()
{
    std::string name;
    if (!nimmName(name))
        syntaxfehler();
    return name;
}

Spaltenname Leser::verlangeSpalte()
{
    Spaltenname name{"", verlangeName()};
    if (nimmZeichen("."))
        name = {std::move(name.spalte), verlangeName()};
    return name;
}

char Leser::vorschau()
{
    ueberspringeLeerzeichen();
    return position_ < text_.size() ? text_[position_] : '\0';
}

bool Leser::stehtVorWort() const
{
    const char zeichen = position_ < text_.size() ? text_[position_] : '\0';
    return istBuchstabe(zeichen) || istZiffer(zeichen) || zeichen == '.';
}

void Leser::syntaxfehler(std::size_t position) const
{
    position = std::min(text_.find_first_not_of(LEERZEICHEN, position), text_.size());
    constexpr std::size_t gezeigt = 40;
    const std::string stelle(leftCharacters(text_.substr(position), gezeigt));
    throw Laufzeitfehler(FEHLER_SYNTAX, "Datenbank",
                         stelle.empty() ? "Syntaxfehler am Ende des Ausdrucks."
                                        : "Syntaxfehler im Ausdruck bei \"" + stelle + "\".");
}

} // namespace quelvarn::sql
