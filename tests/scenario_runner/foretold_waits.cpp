#include "scenario_runner/foretold_waits.h"

#include "scenario_runner/controls.h"

#include <QPixmap>
#include <QWidget>

#include <utility>

namespace quelvarn::scenario {

namespace {

constexpr std::chrono::seconds UNEXPECTED{10};

} // namespace

bool ForetoldWaits::keepWaiting(WaitReason reason, std::chrono::milliseconds waited)
{
    if (!shown_.keepWaiting(reason, waited))
        return false;
    QWidget* button = findControl("CmWartenAbbrechen");
    if (button != nullptr && expected_) {
        const std::string picture = *std::exchange(expected_, std::nullopt);
        if (!picture.empty())
            button->window()->grab().save(qt(picture));
        click("CmWartenAbbrechen"); // The next question has the answer.
    }
    if (waited < UNEXPECTED)
        return true;
    fault_ = "the database lets wait";
    return false;
}

void ForetoldWaits::check()
{
    if (std::exchange(expected_, std::nullopt))
        fault_ = "no wait came that could be given up";
    if (!fault_.empty())
        throw Difference(std::exchange(fault_, {}));
}

} // namespace quelvarn::scenario
