#include "tools/arguments.h"

#include <algorithm>
#include <charconv>
#include <fmt/format.h>
#include <system_error>

namespace quelvarn::tools {

Argumente::Argumente(std::span<const std::string> worte, std::span<const Schalter> bekannte)
{
    bool nurStellen = false; // Behind "--".
    for (std::size_t i = 0; i < worte.size(); ++i) {
        const std::string& wort = worte[i];
        if (nurStellen || !wort.starts_with("--")) {
            stellen_.push_back(wort);
            continue;
        }
        if (wort == "--") {
            nurStellen = true;
            continue;
        }
        const auto gleich = wort.find('=');
        const std::string name = wort.substr(0, gleich);
        const auto schalter = std::ranges::find(bekannte, name, &Schalter::name);
        if (schalter == bekannte.end())
            throw Bedienfehler(fmt::format("Unbekannte Option: {}", name));
        if (schalter->wert == Wert::Keiner && gleich != std::string::npos)
            throw Bedienfehler(fmt::format("Die Option {} hat keinen Wert.", name));
        std::string wert;
        if (schalter->wert == Wert::Noetig) {
            if (gleich == std::string::npos && i + 1 == worte.size())
                throw Bedienfehler(fmt::format("Der Option {} fehlt ihr Wert.", name));
            wert = gleich != std::string::npos ? wort.substr(gleich + 1) : worte[++i];
        }
        if (!werte_.emplace(name, std::move(wert)).second)
            throw Bedienfehler(fmt::format("Die Option {} steht zweimal da.", name));
    }
}

std::optional<std::string> Argumente::findWert(std::string_view schalter) const
{
    const auto gefunden = werte_.find(schalter);
    return gefunden == werte_.end() ? std::nullopt : std::optional(gefunden->second);
}

std::optional<std::int64_t> Argumente::findZahl(std::string_view schalter, std::int64_t kleinster,
                                                std::int64_t groesster) const
{
    const auto text = findWert(schalter);
    if (!text)
        return std::nullopt;
    const auto zahl = parseGanzzahl(*text);
    if (!zahl || *zahl < kleinster || *zahl > groesster)
        throw Bedienfehler(fmt::format("{} braucht eine ganze Zahl von {} bis {}, nicht '{}'.", schalter, kleinster,
                                       groesster, *text));
    return zahl;
}

std::optional<std::int64_t> parseGanzzahl(std::string_view text)
{
    std::int64_t zahl = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), zahl);
    if (fehler != std::errc() || ende != text.data() + text.size())
        return std::nullopt;
    return zahl;
}

} // namespace quelvarn::tools
