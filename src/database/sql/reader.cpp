#include "database/sql/reader.h"

#include "base/runtime_error.h"
#include "base/utf8.h"

#include <algorithm>
#include <array>

namespace quelvarn::sql {
namespace {

constexpr std::string_view BLANK = " \t\r\n\f\v";
constexpr std::array<std::string_view, 22> KEYWORDS{
    "SELECT", "DISTINCT", "FROM",   "WHERE", "ORDER", "BY",  "ASC", "DESC", "INSERT", "INTO", "VALUES",
    "UPDATE", "SET",      "DELETE", "AND",   "OR",    "NOT", "IN",  "LIKE", "IS",     "NULL", "BETWEEN"};

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

// Every byte beyond ASCII belongs to a letter.
bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') || character == '_' ||
           static_cast<unsigned char>(character) >= 0x80;
}

bool isKeyword(std::string_view word, std::string_view upperCase)
{
    return std::ranges::equal(word, upperCase, [](char one, char large) {
        return one == large || (one >= 'a' && one <= 'z' && one - 'a' + 'A' == large);
    });
}

} // namespace

void Reader::skipBlank()
{
    position_ = std::min(text_.find_first_not_of(BLANK, position_), text_.size());
}

std::string_view Reader::word() const
{
    std::size_t end = position_;
    if (end < text_.size() && isLetter(text_[end])) {
        while (end < text_.size() && (isLetter(text_[end]) || isDigit(text_[end])))
            ++end;
    }
    return text_.substr(position_, end - position_);
}

bool Reader::takeWord(std::string_view upperCase)
{
    skipBlank();
    if (!isKeyword(word(), upperCase))
        return false;
    position_ += upperCase.size();
    return true;
}

bool Reader::takeCharacter(std::string_view character)
{
    skipBlank();
    if (!text_.substr(position_).starts_with(character))
        return false;
    position_ += character.size();
    return true;
}

bool Reader::takeName(std::string& name)
{
    skipBlank();
    if (position_ < text_.size() && text_[position_] == '[') {
        const std::size_t end = text_.find_first_of("[]", position_ + 1);
        if (end == std::string_view::npos || text_[end] == '[' || end == position_ + 1)
            return false;
        name = text_.substr(position_ + 1, end - position_ - 1);
        position_ = end + 1;
        return true;
    }
    const std::string_view found = word();
    const auto equal = [&](std::string_view keyword) { return isKeyword(found, keyword); };
    if (found.empty() || std::ranges::any_of(KEYWORDS, equal))
        return false;
    name = found;
    position_ += found.size();
    return true;
}

bool Reader::takeEnd()
{
    const std::size_t begin = position_;
    takeCharacter(";");
    skipBlank();
    if (position_ == text_.size())
        return true;
    position_ = begin;
    return false;
}

void Reader::requireWord(std::string_view upperCase)
{
    if (!takeWord(upperCase))
        syntaxFault();
}

void Reader::requireCharacter(std::string_view character)
{
    if (!takeCharacter(character))
        syntaxFault();
}

void Reader::requireEnd()
{
    if (!takeEnd())
        syntaxFault();
}

std::string Reader::requireName()
{
    std::string name;
    if (!takeName(name))
        syntaxFault();
    return name;
}

ColumnName Reader::requireColumn()
{
    ColumnName name{"", requireName()};
    if (takeCharacter("."))
        name = {std::move(name.column), requireName()};
    return name;
}

char Reader::preview()
{
    skipBlank();
    return position_ < text_.size() ? text_[position_] : '\0';
}

bool Reader::standsBeforeWord() const
{
    const char character = position_ < text_.size() ? text_[position_] : '\0';
    return isLetter(character) || isDigit(character) || character == '.';
}

void Reader::syntaxFault(std::size_t position) const
{
    position = std::min(text_.find_first_not_of(BLANK, position), text_.size());
    constexpr std::size_t shown = 40;
    const std::string near(leftCharacters(text_.substr(position), shown));
    throw RuntimeError(FAULT_SYNTAX, "Datenbank",
                       near.empty() ? "Syntaxfehler am Ende des Ausdrucks."
                                    : "Syntaxfehler im Ausdruck bei \"" + near + "\".");
}

} // namespace quelvarn::sql
