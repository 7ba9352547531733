#include "database/sql/literal.h"

#include "base/date_time.h"
#include "base/text.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace quelvarn::sql {
namespace {

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool beginsNumber(char character)
{
    return isDigit(character) || character == '+' || character == '-' || character == '.';
}

bool beginsLiteral(Reader reader)
{
    const char character = reader.preview();
    return character == '\'' || character == '"' || character == '#' || beginsNumber(character) ||
           reader.takeWord("NULL");
}

bool endsAssignment(Reader reader)
{
    std::string column;
    if (reader.takeCharacter(","))
        return reader.takeName(column) && reader.takeCharacter("=");
    return reader.takeWord("WHERE") || reader.takeEnd();
}

bool endsCondition(Reader reader, Place place, int brackets)
{
    while (reader.takeCharacter(")")) {
        if (--brackets < 0)
            return false;
    }
    if (reader.takeEnd() || reader.takeWord("AND") || reader.takeWord("OR"))
        return true;
    return place == Place::Condition && reader.takeWord("ORDER") && reader.takeWord("BY");
}

// "11/15/26 08:00:00" with the first two numbers exchanged; "" when it has no such form.
std::string swapped(std::string_view date)
{
    const auto noDigit = [](char character) { return !isDigit(character); };
    const auto firstEnd = std::ranges::find_if(date, noDigit);
    if (firstEnd == date.end())
        return {};
    const auto secondEnd = std::find_if(firstEnd + 1, date.end(), noDigit);
    return std::string(firstEnd + 1, secondEnd) + *firstEnd + std::string(date.begin(), firstEnd) +
           std::string(secondEnd, date.end());
}

} // namespace

Value LiteralReader::read(Place place, int brackets)
{
    const char character = reader_.preview();
    if (character == '\'')
        return text(place, brackets);
    if (character == '"')
        return textInQuote();
    if (character == '#')
        return date();
    if (beginsNumber(character))
        return number();
    if ((place == Place::InsertedValue || place == Place::Assignment) && reader_.takeWord("NULL"))
        return std::monostate{};
    reader_.syntaxFault();
}

std::string LiteralReader::text(Place place, int brackets)
{
    const std::string_view everything = reader_.text();
    const std::size_t begin = reader_.position();
    std::string value;
    for (std::size_t position = begin + 1;;) {
        const std::size_t run = everything.find('\'', position);
        if (run == std::string_view::npos)
            reader_.syntaxFault(begin);
        value += everything.substr(position, run - position);
        const std::size_t length = runLength(run);
        position = run + length;
        const bool ends =
            canEnds(position, place, brackets) && (length % 2 == 1 || !isStillClosing(position, place, brackets));
        value.append(ends ? length / 2 : (length + 1) / 2, '\'');
        if (ends) {
            reader_.goTo(position);
            return value;
        }
    }
}

std::size_t LiteralReader::runLength(std::size_t position) const
{
    const std::size_t end = std::min(reader_.text().find_first_not_of('\'', position), reader_.text().size());
    return end - position;
}

bool LiteralReader::canEnds(std::size_t position, Place place, int brackets) const
{
    Reader afterwards = reader_;
    afterwards.goTo(position);
    switch (place) {
    case Place::FirstLimit:
        return afterwards.takeWord("AND");
    case Place::List:
        return afterwards.takeCharacter(",") ? beginsLiteral(afterwards) : afterwards.takeCharacter(")");
    case Place::InsertedValue:
        return afterwards.takeCharacter(",") ? beginsLiteral(afterwards)
                                             : afterwards.takeCharacter(")") && afterwards.takeEnd();
    case Place::Assignment:
        return endsAssignment(afterwards);
    case Place::FilterCondition:
    case Place::Condition:
        break;
    }
    return endsCondition(afterwards, place, brackets);
}

// A pair of apostrophes where the text could end as well is one of the text itself when the text still finds its end
// later, as a doubled apostrophe does; otherwise the value ends with a single one.
bool LiteralReader::isStillClosing(std::size_t position, Place place, int brackets)
{
    const std::string_view everything = reader_.text();
    if (oddRun_ <= position) {
        endsThere_.clear();
        oddRun_ = position;
        std::size_t length = 0;
        while (length % 2 == 0 && oddRun_ != std::string_view::npos) {
            oddRun_ = everything.find('\'', oddRun_);
            if (oddRun_ != std::string_view::npos) {
                length = runLength(oddRun_);
                oddRun_ += length;
            }
        }
    }
    if (oddRun_ == std::string_view::npos)
        return false;
    const auto [entry, isNew] = endsThere_.try_emplace({place, brackets}, false);
    if (isNew)
        entry->second = canEnds(oddRun_, place, brackets);
    return entry->second;
}

std::string LiteralReader::textInQuote()
{
    const std::string_view everything = reader_.text();
    const std::size_t begin = reader_.position();
    std::string value;
    for (std::size_t position = begin + 1;;) {
        const std::size_t end = everything.find('"', position);
        if (end == std::string_view::npos)
            reader_.syntaxFault(begin);
        value += everything.substr(position, end - position);
        position = end + 1;
        if (position == everything.size() || everything[position] != '"') {
            reader_.goTo(position);
            return value;
        }
        value += '"';
        ++position;
    }
}

Value LiteralReader::number()
{
    const std::string_view everything = reader_.text();
    const std::size_t begin = reader_.position();
    const bool sign = everything[begin] == '+' || everything[begin] == '-';
    const std::int64_t factor = everything[begin] == '-' ? -1 : 1;
    const char* const first = everything.data() + begin + (sign ? 1 : 0);
    const char* const end = everything.data() + everything.size();

    double floatingPoint = 0;
    const auto read = std::from_chars(first, end, floatingPoint);
    reader_.goTo(static_cast<std::size_t>(read.ptr - everything.data()));
    // The first character keeps out "--1" and "inf", which from_chars would take.
    const bool readable = read.ec == std::errc{} && (isDigit(*first) || *first == '.');
    if (!readable || reader_.standsBeforeWord())
        reader_.syntaxFault(begin);

    std::int64_t integer = 0;
    const auto whole = std::from_chars(first, end, integer);
    if (whole.ec == std::errc{} && whole.ptr == read.ptr)
        return factor * integer;
    return static_cast<double>(factor) * floatingPoint +
           0.0; // No zero with a sign: written out, it would read as a whole one.
}

DateTime LiteralReader::date()
{
    const std::string_view everything = reader_.text();
    const std::size_t begin = reader_.position();
    const std::size_t end = everything.find('#', begin + 1);
    if (end == std::string_view::npos)
        reader_.syntaxFault(begin);
    const std::string dayFirst(trim(everything.substr(begin + 1, end - begin - 1)));
    const std::string monthFirst = swapped(dayFirst);

    const bool german = sequence_ == DateOrder::DayFirst;
    // Where the first number cannot be what it should be, the two change places.
    auto time = parseDate(german ? dayFirst : monthFirst);
    if (!time)
        time = parseDate(german ? monthFirst : dayFirst);
    if (!time)
        time = parseIso(dayFirst);
    if (!time)
        reader_.syntaxFault(begin);
    reader_.goTo(end + 1);
    return *time;
}

} // namespace quelvarn::sql
