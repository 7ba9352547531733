#include "bench/measure.h"

#include <algorithm>
#include <chrono>

namespace quelvarn::bench {

namespace {

double duration(const Work& work)
{
    work.before();
    const auto begin = std::chrono::steady_clock::now();
    work.action();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

double median(std::vector<double> times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

} // namespace

void Measurements::compare(std::string name, std::optional<double> limit, const Work& ours, std::string peer,
                           const Work& other)
{
    // One run of each beforehand, so that both find the file in the memory of the system.
    if (!other.runs)
        duration(other);
    if (!ours.runs)
        duration(ours);
    std::vector<double> oursTimes;
    std::vector<double> otherTimes;
    const int oursRuns = ours.runs.value_or(runs_);
    const int otherRuns = other.runs.value_or(runs_);
    for (int run = 0; run < std::max(oursRuns, otherRuns); ++run) {
        if (run < oursRuns)
            oursTimes.push_back(duration(ours));
        if (run < otherRuns)
            otherTimes.push_back(duration(other));
    }
    const double here = median(oursTimes);
    const double there = median(otherTimes);
    measurements_.push_back({std::move(name), "ms", here, std::move(peer), there, here / there, limit});
}

void Measurements::limit(std::string name, double limitMs, const Work& ours)
{
    std::vector<double> times;
    for (int run = 0; run < ours.runs.value_or(runs_); ++run)
        times.push_back(duration(ours));
    const double here = median(times);
    measurements_.push_back({std::move(name), "ms", here, {}, {}, here / limitMs, limitMs});
}

void Measurements::limitSize(std::string name, std::string unit, double limit, double value)
{
    measurements_.push_back({std::move(name), std::move(unit), value, {}, {}, value / limit, limit});
}

void Measurements::compareSize(std::string name, std::string unit, double value, std::string peer, double otherValue)
{
    measurements_.push_back(
        {std::move(name), std::move(unit), value, std::move(peer), otherValue, value / otherValue, {}});
}

} // namespace quelvarn::bench
