// Any text as a stored filter: what could be read of it is stored again in a form that reads the same.
#include "filter/filter_string.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace quelvarn;

namespace {

std::string gespeichert(const GespeicherterFilter& filter)
{
    Filterzustand zustand;
    zustand.FilterSchritte = filter.FilterSchritte;
    zustand.FilterAnzahl = filter.FilterAnzahl;
    zustand.ZusBenutzDef = filter.ZusBenutzDef;
    if (filter.ChFilterStat)
        zustand.ChFilterStat = *filter.ChFilterStat;
    if (!speicherbar(zustand))
        std::abort(); // What was read holds no character that parts the entries.
    return alsFilterstring(zustand);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string text = gespeichert(leseFilterstring({reinterpret_cast<const char*>(bytes), size}));
    if (gespeichert(leseFilterstring(text)) != text)
        std::abort();
    return 0;
}
