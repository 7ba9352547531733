#include "bench/report.h"

#include <fmt/format.h>
#include <fstream>

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

} // namespace

void zeigeTabelle(const std::vector<Messung>& messungen)
{
    constexpr auto ZEILE = "{:<44} {:>14}  {:<28} {:>10} {:>7} {:>7}  {}\n";
    fmt::print(ZEILE, "measure", "median", "peer", "median", "ratio", "bound", "");
    for (const Messung& messung : messungen)
        fmt::print(ZEILE, messung.name, fmt::format("{:.3f} {}", messung.median, messung.einheit),
                   messung.peer.value_or("-"), messung.peerMedian ? fmt::format("{:.3f}", *messung.peerMedian) : "-",
                   fmt::format("{:.2f}", messung.verhaeltnis),
                   fmt::format("{:g}{}", messung.grenze, messung.peer ? "x" : ""),
                   messung.gehalten() ? "holds" : "EXCEEDED");
}

void schreibeJson(const std::filesystem::path& datei, const std::vector<Messung>& messungen)
{
    std::ofstream ziel(datei);
    ziel.exceptions(std::ios::failbit | std::ios::badbit);
    ziel << "[\n";
    for (std::size_t i = 0; i < messungen.size(); ++i) {
        const Messung& messung = messungen[i];
        ziel << fmt::format("  {{\"name\": \"{}\", \"unit\": \"{}\", \"median_ms\": {:.4f}, \"peer\": {}, "
                            "\"peer_median_ms\": {}, \"ratio\": {:.4f}, \"bound\": {:g}, \"holds\": {}}}{}\n",
                            messung.name, messung.einheit, messung.median, text(messung.peer), zahl(messung.peerMedian),
                            messung.verhaeltnis, messung.grenze, messung.gehalten(),
                            i + 1 < messungen.size() ? "," : "");
    }
    ziel << "]\n";
}

} // namespace quelvarn::bench
