#include "bench/report.h"

#include <fmt/format.h>
#include <fstream>
#include <string_view>

namespace quelvarn::bench {

namespace {

std::string zahl(const std::optional<double>& wert)
{
    return wert ? fmt::format("{:.4f}", *wert) : "null";
}

// The names are those of this program: they hold no character that JSON would want marked.
std::string text(const std::optional<std::string>& wert)
{
    return wert ? '"' + *wert + '"' : "null";
}

std::string_view urteil(const Messung& messung, std::string_view gehalten, std::string_view gerissen,
                        std::string_view ohneGrenze)
{
    if (!messung.grenze)
        return ohneGrenze;
    return messung.gehalten() ? gehalten : gerissen;
}

} // namespace

void zeigeTabelle(const std::vector<Messung>& messungen)
{
    constexpr auto ZEILE = "{:<44} {:>14}  {:<28} {:>10} {:>7} {:>7}  {}\n";
    fmt::print(ZEILE, "measure", "median", "peer", "median", "ratio", "bound", "");
    for (const Messung& messung : messungen)
        fmt::print(ZEILE, messung.name, fmt::format("{:.3f} {}", messung.median, messung.einheit),
                   messung.peer.value_or("-"), messung.peerMedian ? fmt::format("{:.3f}", *messung.peerMedian) : "-",
                   fmt::format("{:.2f}", messung.verhaeltnis),
                   messung.grenze ? fmt::format("{:g}{}", *messung.grenze, messung.peer ? "x" : "") : "-",
                   urteil(messung, "holds", "EXCEEDED", ""));
}

void schreibeJson(const std::filesystem::path& datei, const std::vector<Messung>& messungen)
{
    std::ofstream ziel(datei);
    ziel.exceptions(std::ios::failbit | std::ios::badbit);
    ziel << "[\n";
    for (std::size_t i = 0; i < messungen.size(); ++i) {
        const Messung& messung = messungen[i];
        ziel << fmt::format("  {{\"name\": \"{}\", \"unit\": \"{}\", \"median_ms\": {:.4f}, \"peer\": {}, "
                            "\"peer_median_ms\": {}, \"ratio\": {:.4f}, \"bound\": {}, \"holds\": {}}}{}\n",
                            messung.name, messung.einheit, messung.median, text(messung.peer), zahl(messung.peerMedian),
                            messung.verhaeltnis, zahl(messung.grenze), urteil(messung, "true", "false", "null"),
                            i + 1 < messungen.size() ? "," : "");
    }
    ziel << "]\n";
}

} // namespace quelvarn::bench
