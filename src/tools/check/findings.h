#pragma once

#include "base/runtime_error.h"
#include "database/engine.h"
#include "database/faults.h"

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::tools {

// Collects what a check finds and writes it line by line.
class Findings
{
public:
    explicit Findings(std::ostream& out) : out_(out) {}
    void fault(std::string_view text); // The program cannot work well with it.
    void warn(std::string_view text);  // It can, but someone should look at it.
    void row(std::string_view text);   // Neither.

    std::uint64_t faultCount() const { return fault_; }
    std::uint64_t warningCount() const { return warnings_; }

private:
    std::ostream& out_;
    std::uint64_t fault_ = 0;
    std::uint64_t warnings_ = 0;
};

// Whether no further part of a check can succeed.
bool endsCheck(const RuntimeError& fault);
// A text of several lines as one.
std::string oneLine(std::string_view text);

// A part of a check. What a damaged database does not give is a finding; the other parts go on.
template <typename Work> void attempt(std::string_view what, Findings& findings, const Work& work)
{
    try {
        work();
    } catch (const RuntimeError& fault) {
        if (endsCheck(fault))
            throw;
        findings.fault(std::string(what) + ": nicht zu lesen: " + oneLine(fault.what()));
    }
}

// Counts the rows with one fault and remembers the first of them.
class Occurrences
{
public:
    void remember(std::string_view example)
    {
        if (count_++ == 0)
            example_ = example;
    }
    std::uint64_t count() const { return count_; }
    // "Zeilen ohne Part: 3, etwa x.asm"
    std::string text(std::string_view what) const;

private:
    std::uint64_t count_ = 0;
    std::string example_;
};

// Reads columns of a whole table; nothing when the database lacks the table or one of the columns.
std::unique_ptr<RowReader> findRows(Engine& engine, std::string_view table, std::vector<std::string> columns);

} // namespace quelvarn::tools
