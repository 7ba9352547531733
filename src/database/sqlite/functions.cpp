#include "database/sqlite/functions.h"

#include "base/collation.h"
#include "base/like_pattern.h"

#include <array>
#include <memory>
#include <new>
#include <sqlite3.h>
#include <string_view>

namespace quelvarn::sqlite {
namespace {

int compare(void*, int linksLength, const void* left, int rightLength, const void* right)
{
    return compareText({static_cast<const char*>(left), static_cast<std::size_t>(linksLength)},
                       {static_cast<const char*>(right), static_cast<std::size_t>(rightLength)});
}

std::string_view textFrom(sqlite3_value* value)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value))) : std::string_view();
}

// Most texts are short and plain: they are folded on the stack.
bool meets(const LikePattern& pattern, std::string_view text)
{
    std::array<char, 256> folded;
    if (text.size() > folded.size())
        return pattern.matches(text);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char character = text[i];
        if (static_cast<unsigned char>(character) >= 0x80)
            return pattern.matches(text);
        folded[i] = character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
    }
    return pattern.matchesFolded({folded.data(), text.size()});
}

void removePattern(void* pattern)
{
    delete static_cast<LikePattern*>(pattern);
}

// Null when either side is Null, which is neither LIKE nor NOT LIKE.
void qvLike(sqlite3_context* context, int, sqlite3_value** values)
{
    if (sqlite3_value_type(values[0]) == SQLITE_NULL || sqlite3_value_type(values[1]) == SQLITE_NULL)
        return;
    try {
        if (const auto* pattern = static_cast<const LikePattern*>(sqlite3_get_auxdata(context, 0))) {
            sqlite3_result_int(context, meets(*pattern, textFrom(values[1])));
            return;
        }
        auto pattern = std::make_unique<LikePattern>(textFrom(values[0]), Wildcards::Sql);
        sqlite3_result_int(context, meets(*pattern, textFrom(values[1])));
        sqlite3_set_auxdata(context, 0, pattern.release(), removePattern);
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    }
}

} // namespace

void registerFunctions(sqlite3* database)
{
    sqlite3_create_collation_v2(database, "QV", SQLITE_UTF8, nullptr, compare, nullptr);
    sqlite3_create_function_v2(database, "qv_like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, qvLike, nullptr,
                               nullptr, nullptr);
}

} // namespace quelvarn::sqlite
