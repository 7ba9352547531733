#pragma once

#include "platform/boxes.h"
#include "scenario_runner/script.h"

#include <deque>
#include <optional>
#include <string>

namespace quelvarn::scenario {

// Answers boxes as the scenario foretold: each in its order, with its title and, when given, its whole text.
class ExpectedBoxes final : public Boxes
{
public:
    struct Foretold
    {
        std::string title;
        std::optional<std::string> text;
        std::string answer; // "OK", "Abbrechen", "Ja", "Nein"
        std::string place;
    };

    void expect(Foretold foretold) { boxes_.push_back(std::move(foretold)); }
    Answer show(const Box& box) override;

    // Throws Difference for what went wrong in a box since the last call, and for boxes that never came.
    void check();
    const std::optional<Box>& last() const { return last_; }

private:
    std::deque<Foretold> boxes_;
    std::optional<Box> last_;
    // A box is shown deep inside the program, where a Difference must not pass; it waits here for the step's end.
    std::string fault_;
};

} // namespace quelvarn::scenario
