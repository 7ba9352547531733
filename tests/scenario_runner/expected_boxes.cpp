#include "scenario_runner/expected_boxes.h"

#include <array>
#include <fmt/format.h>
#include <utility>

namespace quelvarn::scenario {

namespace {

constexpr std::array<std::pair<std::string_view, Antwort>, 4> ANSWERS{
    {{"OK", Antwort::Ok}, {"Abbrechen", Antwort::Abbrechen}, {"Ja", Antwort::Ja}, {"Nein", Antwort::Nein}}};

bool offers(Knoepfe buttons, Antwort answer)
{
    switch (buttons) {
    case Knoepfe::Ok:
        return answer == Antwort::Ok;
    case Knoepfe::OkAbbrechen:
        return answer == Antwort::Ok || answer == Antwort::Abbrechen;
    case Knoepfe::JaNein:
        return answer == Antwort::Ja || answer == Antwort::Nein;
    case Knoepfe::JaNeinAbbrechen:
        return answer != Antwort::Ok;
    }
    return false;
}

// What closes a box without doing anything.
Antwort mildest(Knoepfe buttons)
{
    switch (buttons) {
    case Knoepfe::OkAbbrechen:
    case Knoepfe::Ok:
        return Antwort::Ok;
    default:
        return Antwort::Nein;
    }
}

} // namespace

Antwort ExpectedBoxes::zeige(const Meldung& meldung)
{
    last_ = meldung;
    if (boxes_.empty()) {
        fault_ += fmt::format("an unexpected box came: \"{}\"\n  {}\n", meldung.titel, meldung.text);
        return mildest(meldung.knoepfe);
    }
    const Box box = boxes_.front();
    boxes_.pop_front();
    if (box.title != meldung.titel)
        fault_ += fmt::format("title of a box\n  expected: {}\n  found:    {}\n", box.title, meldung.titel);
    if (box.text && *box.text != meldung.text)
        fault_ +=
            fmt::format("text of the box \"{}\"\n  expected: {}\n  found:    {}\n", box.title, *box.text, meldung.text);
    for (const auto& [name, answer] : ANSWERS)
        if (name == box.answer && offers(meldung.knoepfe, answer))
            return answer;
    fault_ += fmt::format("the box \"{}\" has no button \"{}\"\n", meldung.titel, box.answer);
    return mildest(meldung.knoepfe);
}

void ExpectedBoxes::check()
{
    auto fault = std::exchange(fault_, {});
    for (const auto& box : boxes_)
        fault += fmt::format("a box did not come: \"{}\"\n", box.title);
    boxes_.clear();
    if (!fault.empty())
        throw Difference(fault.substr(0, fault.size() - 1));
}

} // namespace quelvarn::scenario
