#include "scenario_runner/expected_boxes.h"

#include <array>
#include <fmt/format.h>
#include <utility>

namespace quelvarn::scenario {

namespace {

constexpr std::array<std::pair<std::string_view, Answer>, 4> ANSWERS{
    {{"OK", Answer::Ok}, {"Abbrechen", Answer::Cancel}, {"Ja", Answer::Yes}, {"Nein", Answer::No}}};

bool offers(Buttons buttons, Answer answer)
{
    switch (buttons) {
    case Buttons::Ok:
        return answer == Answer::Ok;
    case Buttons::OkCancel:
        return answer == Answer::Ok || answer == Answer::Cancel;
    case Buttons::YesNo:
        return answer == Answer::Yes || answer == Answer::No;
    case Buttons::YesNoCancel:
        return answer != Answer::Ok;
    }
    return false;
}

// What closes a box without doing anything.
Answer mildest(Buttons buttons)
{
    switch (buttons) {
    case Buttons::OkCancel:
    case Buttons::Ok:
        return Answer::Ok;
    default:
        return Answer::No;
    }
}

} // namespace

Answer ExpectedBoxes::show(const Box& box)
{
    last_ = box;
    if (boxes_.empty()) {
        fault_ += fmt::format("an unexpected box came: \"{}\"\n  {}\n", box.title, box.text);
        return mildest(box.buttons);
    }
    const Foretold foretold = boxes_.front();
    boxes_.pop_front();
    if (foretold.title != box.title)
        fault_ += fmt::format("title of a box\n  expected: {}\n  found:    {}\n", foretold.title, box.title);
    if (foretold.text && *foretold.text != box.text)
        fault_ += fmt::format("text of the box \"{}\"\n  expected: {}\n  found:    {}\n", foretold.title,
                              *foretold.text, box.text);
    for (const auto& [name, answer] : ANSWERS)
        if (name == foretold.answer && offers(box.buttons, answer))
            return answer;
    fault_ += fmt::format("the box \"{}\" has no button \"{}\"\n", box.title, foretold.answer);
    return mildest(box.buttons);
}

void ExpectedBoxes::check()
{
    auto fault = std::exchange(fault_, {});
    for (const auto& foretold : boxes_)
        fault += fmt::format("a box did not come: \"{}\"\n", foretold.title);
    boxes_.clear();
    if (!fault.empty())
        throw Difference(fault.substr(0, fault.size() - 1));
}

} // namespace quelvarn::scenario
