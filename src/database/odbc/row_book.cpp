#include "database/odbc/row_book.h"

#include <cassert>
#include <cstring>

namespace quelvarn::odbc {
namespace {

template <class Number> void write(std::string& picture, Number number)
{
    char bytes[sizeof number];
    std::memcpy(bytes, &number, sizeof number);
    picture.append(bytes, sizeof number);
}

template <class Number> Number read(std::string_view& picture)
{
    Number number;
    assert(picture.size() >= sizeof number);
    std::memcpy(&number, picture.data(), sizeof number);
    picture.remove_prefix(sizeof number);
    return number;
}

// What a cell holds stands in front of it.
constexpr char Nothing = 'N', Whole = 'G', Number = 'Z', Text = 'T', Time = 'D';

struct Writer
{
    std::string& picture;

    void operator()(std::monostate) const { picture += Nothing; }
    void operator()(std::int64_t number) const { write(picture += Whole, number); }
    void operator()(double number) const { write(picture += Number, number); }
    void operator()(const std::string& text) const
    {
        write(picture += Text, text.size());
        picture += text;
    }
    void operator()(DateTime time) const { write(picture += Time, time.seconds); }
};

Value readCell(std::string_view& picture)
{
    const char kind = picture.front();
    picture.remove_prefix(1);
    switch (kind) {
    case Whole:
        return read<std::int64_t>(picture);
    case Number:
        return read<double>(picture);
    case Time:
        return DateTime{read<std::int64_t>(picture)};
    case Text: {
        const auto length = read<std::size_t>(picture);
        std::string text(picture.substr(0, length));
        picture.remove_prefix(length);
        return text;
    }
    default:
        return {};
    }
}

} // namespace

std::string RowBook::pictureOf(std::span<const Value> row)
{
    std::string picture;
    for (const Value& cell : row)
        std::visit(Writer{picture}, cell);
    return picture;
}

std::vector<Value> RowBook::rowOf(std::string_view picture)
{
    std::vector<Value> row;
    while (!picture.empty())
        row.push_back(readCell(picture));
    return row;
}

RowKey RowBook::keyOf(const std::string& picture, std::size_t occurrences)
{
    const auto entry = key_.try_emplace(picture).first;
    std::vector<RowKey>& same = entry->second;
    while (same.size() < occurrences) {
        same.push_back(++last_);
        pictures_.emplace(last_, &entry->first);
    }
    return same[occurrences - 1];
}

const std::string* RowBook::findPicture(RowKey key) const
{
    const auto entry = pictures_.find(key);
    return entry == pictures_.end() ? nullptr : entry->second;
}

void RowBook::replace(RowKey key, const std::string& newPicture)
{
    const auto entry = key_.try_emplace(newPicture).first;
    remove(key);
    entry->second.push_back(key);
    pictures_.emplace(key, &entry->first);
}

void RowBook::remove(RowKey key)
{
    const auto entry = pictures_.find(key);
    if (entry == pictures_.end())
        return;
    std::erase(key_.find(*entry->second)->second, key);
    pictures_.erase(entry);
}

} // namespace quelvarn::odbc
