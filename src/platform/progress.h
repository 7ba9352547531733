#pragma once

#include <cstddef>
#include <string_view>

namespace quelvarn {

// Shows how far a long piece of work has come, and lets a person give it up. One piece at a time.
class ProgressDisplay
{
public:
    virtual ~ProgressDisplay() = default;
    virtual void begin(std::string_view text) = 0;
    // False when the person has given up. What is quick is never shown.
    virtual bool step(std::size_t done, std::size_t total) = 0;
    virtual void end() = 0;
};

// Work that nobody watches.
class SilentDisplay final : public ProgressDisplay
{
public:
    void begin(std::string_view) override {}
    bool step(std::size_t, std::size_t) override { return true; }
    void end() override {}
};

// One piece of work on the display, for as long as it lives. Callable as the Progress of a recordset.
class LongWork
{
public:
    LongWork(ProgressDisplay& display, std::string_view text) : display_(display) { display_.begin(text); }
    ~LongWork() { display_.end(); }
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

    bool operator()(std::size_t done, std::size_t total)
    {
        abandoned_ = abandoned_ || !display_.step(done, total);
        return !abandoned_;
    }
    bool abandoned() const { return abandoned_; }

private:
    ProgressDisplay& display_;
    bool abandoned_ = false;
};

} // namespace quelvarn
