#include "bench/report.h"

#include <fmt/format.h>
#include <fstream>
#include <string_view>

namespace quelvarn::bench {

namespace {

std::string number(const std::optional<double>& value)
{
    return value ? fmt::format("{:.4f}", *value) : "null";
}

// The names are those of this program: they hold no character that JSON would want marked.
std::string text(const std::optional<std::string>& value)
{
    return value ? '"' + *value + '"' : "null";
}

std::string_view verdict(const Measurement& measurement, std::string_view held, std::string_view torn,
                         std::string_view withoutLimit)
{
    if (!measurement.limit)
        return withoutLimit;
    return measurement.held() ? held : torn;
}

} // namespace

void showTable(const std::vector<Measurement>& measurements)
{
    constexpr auto ROW = "{:<44} {:>14}  {:<28} {:>10} {:>7} {:>7}  {}\n";
    fmt::print(ROW, "measure", "median", "peer", "median", "ratio", "bound", "");
    for (const Measurement& measurement : measurements)
        fmt::print(ROW, measurement.name, fmt::format("{:.3f} {}", measurement.median, measurement.unit),
                   measurement.peer.value_or("-"),
                   measurement.peerMedian ? fmt::format("{:.3f}", *measurement.peerMedian) : "-",
                   fmt::format("{:.2f}", measurement.ratio),
                   measurement.limit ? fmt::format("{:g}{}", *measurement.limit, measurement.peer ? "x" : "") : "-",
                   verdict(measurement, "holds", "EXCEEDED", ""));
}

void writeJson(const std::filesystem::path& file, const std::vector<Measurement>& measurements)
{
    std::ofstream target(file);
    target.exceptions(std::ios::failbit | std::ios::badbit);
    target << "[\n";
    for (std::size_t i = 0; i < measurements.size(); ++i) {
        const Measurement& measurement = measurements[i];
        target << fmt::format("  {{\"name\": \"{}\", \"unit\": \"{}\", \"median_ms\": {:.4f}, \"peer\": {}, "
                              "\"peer_median_ms\": {}, \"ratio\": {:.4f}, \"bound\": {}, \"holds\": {}}}{}\n",
                              measurement.name, measurement.unit, measurement.median, text(measurement.peer),
                              number(measurement.peerMedian), measurement.ratio, number(measurement.limit),
                              verdict(measurement, "true", "false", "null"), i + 1 < measurements.size() ? "," : "");
    }
    target << "]\n";
}

} // namespace quelvarn::bench
