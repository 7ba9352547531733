#include "base/windows_path.h"

#include "base/collation.h"
#include "base/utf8.h"

#include <array>
#include <utility>

namespace quelvarn {

std::string DateiName(std::string_view pfad)
{
    return std::string(pfad.substr(pfad.rfind('\\') + 1));
}

std::string Ordnername(std::string_view pfad)
{
    const std::size_t backslash = pfad.rfind('\\');
    return backslash == std::string_view::npos ? std::string() : std::string(pfad.substr(0, backslash));
}

std::string Dateiendung(std::string_view pfad)
{
    return countCharacters(pfad) < 3 ? std::string() : toLower(rightCharacters(pfad, 3));
}

std::string mitEndung(std::string_view pfad, std::string_view endung)
{
    pfad.remove_suffix(rightCharacters(pfad, 3).size());
    return std::string(pfad).append(endung);
}

int dateiTypCode(std::string_view pfad)
{
    constexpr std::array<std::pair<std::string_view, int>, 5> codes = {
        {{"par", 1}, {"dft", 2}, {"asm", 3}, {"psm", 4}, {"pwd", 6}}};
    const std::string endung = Dateiendung(pfad);
    for (const auto& [bekannt, code] : codes) {
        if (endung == bekannt)
            return code;
    }
    return 0;
}

} // namespace quelvarn
