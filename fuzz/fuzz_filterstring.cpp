// Any text as a stored filter: what could be read of it is stored again in a form that reads the same.
#include "filter/filter_string.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace quelvarn;

namespace {

std::string saved(const SavedFilter& filter)
{
    TypeFilter state;
    state.FilterSchritte = filter.FilterSchritte;
    state.FilterAnzahl = filter.FilterAnzahl;
    state.ZusBenutzDef = filter.ZusBenutzDef;
    if (filter.ChFilterStat)
        state.ChFilterStat = *filter.ChFilterStat;
    if (!storable(state))
        std::abort(); // What was read holds no character that parts the entries.
    return asFilterString(state);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string text = saved(readFilterString({reinterpret_cast<const char*>(bytes), size}));
    if (saved(readFilterString(text)) != text)
        std::abort();
    return 0;
}
