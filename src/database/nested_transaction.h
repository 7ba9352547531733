#pragma once

#include <cassert>
#include <fmt/format.h>
#include <string>

namespace quelvarn {

// Statements that open and end a transaction; one inside another is a savepoint.
class TransactionSequence
{
public:
    explicit TransactionSequence(std::string begin) : begin_(std::move(begin)) {}

    bool open() const { return depth_ > 0; }
    std::string begin() const { return depth_ == 0 ? begin_ : fmt::format("SAVEPOINT qv_{}", depth_); }
    std::string completion() const { return depth_ == 1 ? "COMMIT" : fmt::format("RELEASE qv_{}", depth_ - 1); }
    std::string rollback() const
    {
        return depth_ == 1 ? "ROLLBACK" : fmt::format("ROLLBACK TO qv_{0}; RELEASE qv_{0}", depth_ - 1);
    }

    void begun() { ++depth_; }
    void ended()
    {
        assert(depth_ > 0);
        --depth_;
    }

private:
    std::string begin_;
    int depth_ = 0;
};

} // namespace quelvarn
