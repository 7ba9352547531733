#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quelvarn::bench {

// One figure with what it must not exceed.
struct Measurement
{
    std::string name;
    std::string unit = "ms";
    double median = 0;
    std::optional<std::string> peer; // What it is compared with; nothing for a bound of its own.
    std::optional<double> peerMedian;
    double ratio = 0;            // To the peer, or to the bound itself.
    std::optional<double> limit; // Of the ratio with a peer; otherwise in the unit of the figure. Nothing: to compare.
    bool held() const { return !limit || ratio <= (peer ? *limit : 1.0); }
};

// A piece of work to be timed, with what has to be got ready before each run.
struct Work
{
    std::function<void()> action;
    std::function<void()> before = [] {};
    std::optional<int> runs; // Instead of those of the series: for what is very short, or takes very long.
};

// Takes the figures of one run of the program.
class Measurements
{
public:
    Measurements(int runs, bool manyDocuments) : runs_(runs), manyDocuments_(manyDocuments) {}

    // Of work that grows with the documents: with few of them, what each run costs at least would decide.
    std::optional<double> atMany(double limit) const { return manyDocuments_ ? std::optional(limit) : std::nullopt; }

    // The median of our time against that of the peer; the two take turns.
    void compare(std::string name, std::optional<double> limit, const Work& ours, std::string peer, const Work& other);
    void limit(std::string name, double limitMs, const Work& ours);
    void limitSize(std::string name, std::string unit, double limit, double value);
    void compareSize(std::string name, std::string unit, double value, std::string peer, double otherValue);

    const std::vector<Measurement>& measurements() const { return measurements_; }

private:
    int runs_;
    bool manyDocuments_;
    std::vector<Measurement> measurements_;
};

} // namespace quelvarn::bench
