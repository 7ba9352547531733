#include "scenario_runner/controls.h"
#include "scenario_runner/entries.h"
#include "scenario_runner/steps.h"
#include "scenario_runner/world.h"

#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include <fmt/format.h>

namespace quelvarn::scenario {

namespace {

void clickVerb(World&, const Step& step)
{
    if (step.has(2))
        clickToolButton(step.word(1), step.word(2));
    else
        click(step.word(1));
}

void rowVerb(World&, const Step& step)
{
    clickRow(step.word(1), std::stoi(step.word(2)), false);
}

// A timer is fired by its name: its time-out comes now instead of later.
void fireVerb(World& world, const Step& step)
{
    auto* timer = world.mainWindow().findChild<QTimer*>(qt(step.word(1)));
    if (timer == nullptr)
        throw Difference(fmt::format("there is no timer \"{}\"", step.word(1)));
    // A time-out of 0 milliseconds, waited for, is the same signal by the same way.
    const bool single = timer->isSingleShot();
    const int interval = timer->interval();
    timer->start(0);
    world.settle();
    timer->setSingleShot(single);
    timer->setInterval(interval);
}

// Without a folder for pictures the step does nothing.
void pictureVerb(World& world, const Step& step)
{
    if (world.pictureFolder().empty())
        return;
    auto& widget = step.has(2) ? control(step.word(2)) : world.mainWindow();
    const auto file = qt(world.pictureFolder() + "/" + step.word(1) + ".png");
    if (!widget.grab().save(file))
        throw Difference(fmt::format("{} cannot be written", plain(file)));
}

} // namespace

void addGestureVerbs(Verbs& verbs)
{
    verbs["click"] = clickVerb;
    verbs["double-click"] = [](World&, const Step& step) {
        if (step.has(2))
            choose(step.word(1), step.word(2), true);
        else
            doubleClick(step.word(1));
    };
    verbs["tick"] = [](World&, const Step& step) { tick(step.word(1), true); };
    verbs["untick"] = [](World&, const Step& step) { tick(step.word(1), false); };
    verbs["choose"] = [](World&, const Step& step) { choose(step.word(1), step.word(2)); };
    verbs["type"] = [](World&, const Step& step) { typeText(step.word(1), step.word(2)); };
    verbs["press"] = [](World&, const Step& step) { pressKey(step.word(1)); };
    verbs["slide"] = [](World&, const Step& step) { slide(step.word(1), std::stoi(step.word(2))); };
    verbs["row"] = rowVerb;
    verbs["open-row"] = [](World&, const Step& step) { clickRow(step.word(1), std::stoi(step.word(2)), true); };
    verbs["node"] = [](World&, const Step& step) {
        step.word(2);
        clickNode(step.word(1), {step.words.begin() + 2, step.words.end()});
    };
    for (const bool finish : {true, false})
        verbs[finish ? "edit" : "write"] = [finish](World&, const Step& step) {
            editCell(step.word(1), std::stoi(step.word(2)), std::stoi(step.word(3)), step.word(4), finish);
        };
    verbs["day"] = [](World&, const Step& step) { clickDay(step.word(1), step.word(2)); };
    verbs["unfold"] = [](World&, const Step& step) { expand(step.word(1), step.word(2), true); };
    verbs["fold"] = [](World&, const Step& step) { expand(step.word(1), step.word(2), false); };
    verbs["fire"] = fireVerb;
    verbs["picture"] = pictureVerb;
}

} // namespace quelvarn::scenario
