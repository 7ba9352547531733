#pragma once

#include "platform/boxes.h"
#include "scenario_runner/script.h"

#include <deque>
#include <optional>
#include <string>

namespace quelvarn::scenario {

// Answers boxes as the scenario foretold: each in its order, with its title and, when given, its whole text.
class ExpectedBoxes final : public Meldungen
{
public:
    struct Box
    {
        std::string title;
        std::optional<std::string> text;
        std::string answer; // "OK", "Abbrechen", "Ja", "Nein"
        std::string place;
    };

    void expect(Box box) { boxes_.push_back(std::move(box)); }
    Antwort zeige(const Meldung& meldung) override;

    // Throws Difference for what went wrong in a box since the last call, and for boxes that never came.
    void check();
    const std::optional<Meldung>& last() const { return last_; }

private:
    std::deque<Box> boxes_;
    std::optional<Meldung> last_;
    // A box is shown deep inside the program, where a Difference must not pass; it waits here for the step's end.
    std::string fault_;
};

} // namespace quelvarn::scenario
