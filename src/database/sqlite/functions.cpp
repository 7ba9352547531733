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

int vergleiche(void*, int linksLaenge, const void* links, int rechtsLaenge, const void* rechts)
{
    return compareText({static_cast<const char*>(links), static_cast<std::size_t>(linksLaenge)},
                       {static_cast<const char*>(rechts), static_cast<std::size_t>(rechtsLaenge)});
}

std::string_view textAus(sqlite3_value* wert)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(wert));
    return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(wert))) : std::string_view();
}

// Most texts are short and plain: they are folded on the stack.
bool trifft(const LikePattern& muster, std::string_view text)
{
    std::array<char, 256> gefaltet;
    if (text.size() > gefaltet.size())
        return muster.matches(text);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char zeichen = text[i];
        if (static_cast<unsigned char>(zeichen) >= 0x80)
            return muster.matches(text);
        gefaltet[i] = zeichen >= 'A' && zeichen <= 'Z' ? static_cast<char>(zeichen + ('a' - 'A')) : zeichen;
    }
    return muster.matchesFolded({gefaltet.data(), text.size()});
}

void loescheMuster(void* muster)
{
    delete static_cast<LikePattern*>(muster);
}

// Null when either side is Null, which is neither LIKE nor NOT LIKE.
void qvLike(sqlite3_context* kontext, int, sqlite3_value** werte)
{
    if (sqlite3_value_type(werte[0]) == SQLITE_NULL || sqlite3_value_type(werte[1]) == SQLITE_NULL)
        return;
    try {
        if (const auto* muster = static_cast<const LikePattern*>(sqlite3_get_auxdata(kontext, 0))) {
            sqlite3_result_int(kontext, trifft(*muster, textAus(werte[1])));
            return;
        }
        auto muster = std::make_unique<LikePattern>(textAus(werte[0]), Wildcards::Sql);
        sqlite3_result_int(kontext, trifft(*muster, textAus(werte[1])));
        sqlite3_set_auxdata(kontext, 0, muster.release(), loescheMuster);
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(kontext);
    }
}

} // namespace

void registriereFunktionen(sqlite3* datenbank)
{
    sqlite3_create_collation_v2(datenbank, "QV", SQLITE_UTF8, nullptr, vergleiche, nullptr);
    sqlite3_create_function_v2(datenbank, "qv_like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, qvLike, nullptr,
                               nullptr, nullptr);
}

} // namespace quelvarn::sqlite
