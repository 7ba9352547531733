#include "database/recordset.h"
#include "fakes/statements.h"
#include "platform/files.h"
#include "scenario_runner/controls.h"
#include "scenario_runner/entries.h"
#include "scenario_runner/steps.h"
#include "scenario_runner/world.h"

#include <QAction>
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <fmt/format.h>
#include <fmt/ranges.h>

namespace quelvarn::scenario {

namespace {

void compare(std::string_view what, std::string_view expected, std::string_view found)
{
    if (expected != found)
        throw Difference::between(what, expected, found);
}

void compareLines(std::string_view what, const std::vector<std::string>& expected,
                  const std::vector<std::string>& found)
{
    if (expected != found)
        throw Difference(fmt::format("{}\n  expected:\n    {}\n  found:\n    {}", what, fmt::join(expected, "\n    "),
                                     fmt::join(found, "\n    ")));
}

// The text of a control, or of a tool bar's button tip, given in the step or as lines under it.
std::string expectedText(const Step& step, std::size_t index)
{
    return step.has(index) ? step.word(index) : step.joinedText();
}

void textIs(World&, const Step& step)
{
    compare(step.word(1), expectedText(step, 2), textOf(step.word(1)));
}

void textHolds(World&, const Step& step)
{
    const auto found = textOf(step.word(1));
    if (found.find(step.word(2)) == std::string::npos)
        throw Difference::between(step.word(1) + " holds", step.word(2), found);
}

void state(const Step& step, std::string_view wanted, bool forAction, bool forWidget)
{
    if (!(step.has(2) ? forAction : forWidget))
        throw Difference(fmt::format("{}{}{} is not {}", step.word(1), step.has(2) ? " / " : "",
                                     step.has(2) ? step.word(2) : "", wanted));
}

bool widgetState(const Step& step, bool (QWidget::*question)() const)
{
    return !step.has(2) && (control(step.word(1)).*question)();
}

bool actionState(const Step& step, bool (QAction::*question)() const)
{
    return step.has(2) && (toolButton(step.word(1), step.word(2)).*question)();
}

bool shown(const Step& step)
{
    auto* widget = findControl(step.word(1));
    return widget != nullptr && widget->isVisible();
}

void toolTip(World&, const Step& step)
{
    compare("tool tip of " + step.word(2), step.word(3), plain(toolButton(step.word(1), step.word(2)).toolTip()));
}

std::string rowAsText(const Recordset& rows)
{
    std::string line;
    for (const auto& column : rows.fields())
        line += (line.empty() ? "" : " ; ") + rows.Text(column.name);
    return line;
}

std::vector<std::string> rowsAsText(Recordset& rows)
{
    std::vector<std::string> lines;
    for (; !rows.eof(); rows.MoveNext())
        lines.push_back(rowAsText(rows));
    return lines;
}

void queryGives(World& world, const Step& step)
{
    auto connection = world.connect();
    Recordset rows;
    rows.Open(test::query(step.word(1)), connection);
    compareLines(step.word(1), step.text, rowsAsText(rows));
}

// The order counts where the query has one.
void showsQuery(World& world, const Step& step)
{
    auto connection = world.connect();
    Recordset rows;
    rows.Open(test::query(step.word(2)), connection);
    auto shown = linesOf(step.word(1), static_cast<int>(rows.fields().size()));
    auto wanted = rowsAsText(rows);
    if (step.word(2).find("ORDER BY") == std::string::npos) {
        std::ranges::sort(shown);
        std::ranges::sort(wanted);
    }
    const auto what = fmt::format("{} shows {}", step.word(1), step.word(2));
    const auto [found, expected] = std::ranges::mismatch(shown, wanted);
    const auto line = [](auto place, const auto& lines) { return place != lines.end() ? *place : std::string("-"); };
    if (found != shown.end() || expected != wanted.end())
        throw Difference(fmt::format("{}\n  expected: {} rows, {}\n  found:    {} rows, {}", what, wanted.size(),
                                     line(expected, wanted), shown.size(), line(found, shown)));
}

void countIs(World& world, const Step& step)
{
    auto connection = world.connect();
    Recordset rows;
    rows.Open(test::query(step.word(1)), connection);
    compare(step.word(1), step.word(2), std::to_string(rows.RecordCount()));
}

void fileIs(World& world, const Step& step)
{
    if (!world.files().fileExists(step.word(1)))
        throw Difference(fmt::format("there is no file {}", step.word(1)));
    if (!step.text.empty())
        compare(step.word(1), step.joinedText(), world.fileText(step.word(1)));
}

void timerState(World& world, const Step& step)
{
    auto* timer = world.mainWindow().findChild<QTimer*>(qt(step.word(1)));
    const bool runs = timer != nullptr && timer->isActive();
    compare(step.word(1), step.word(2), runs ? std::to_string(timer->interval()) : "stopped");
}

void addControlStates(Verbs& verbs)
{
    verbs["enabled"] = [](World&, const Step& s) {
        state(s, "enabled", actionState(s, &QAction::isEnabled), widgetState(s, &QWidget::isEnabled));
    };
    verbs["disabled"] = [](World&, const Step& s) {
        state(s, "disabled", !actionState(s, &QAction::isEnabled), !widgetState(s, &QWidget::isEnabled));
    };
    verbs["visible"] = [](World&, const Step& s) {
        state(s, "visible", actionState(s, &QAction::isVisible), shown(s));
    };
    verbs["hidden"] = [](World&, const Step& s) {
        state(s, "hidden", !actionState(s, &QAction::isVisible), !shown(s));
    };
    verbs["ticked"] = [](World&, const Step& s) {
        state(s, "ticked", actionState(s, &QAction::isChecked), !s.has(2) && isTicked(s.word(1)));
    };
    verbs["unticked"] = [](World&, const Step& s) {
        state(s, "unticked", !actionState(s, &QAction::isChecked), !s.has(2) && !isTicked(s.word(1)));
    };
}

} // namespace

void addExpectations(Verbs& verbs)
{
    addControlStates(verbs);
    verbs["focus"] = [](World&, const Step& step) {
        const auto* focused = QApplication::focusWidget();
        compare("focus", step.word(1), focused != nullptr ? plain(focused->objectName()) : std::string("nowhere"));
    };
    verbs["text"] = textIs;
    verbs["part"] = textHolds;
    verbs["tip"] = toolTip;
    verbs["title"] = [](World& world, const Step& step) {
        compare("title", expectedText(step, 1), plain(world.mainWindow().windowTitle()));
    };
    verbs["rows"] = [](World&, const Step& step) {
        compare("rows of " + step.word(1), step.word(2), std::to_string(rowsOf(step.word(1))));
    };
    verbs["row"] = [](World&, const Step& step) {
        compare("current row of " + step.word(1), step.word(2), std::to_string(currentRowOf(step.word(1))));
    };
    verbs["cell"] = [](World&, const Step& step) {
        compare(fmt::format("cell {}, {} of {}", step.word(2), step.word(3), step.word(1)), step.word(4),
                cellOf(step.word(1), std::stoi(step.word(2)), std::stoi(step.word(3))));
    };
    verbs["tree"] = [](World&, const Step& step) { compareLines(step.word(1), step.text, treeOf(step.word(1))); };
    verbs["entries"] = [](World&, const Step& step) { compareLines(step.word(1), step.text, entriesOf(step.word(1))); };
    verbs["query"] = queryGives;
    verbs["shows"] = showsQuery;
    verbs["count"] = countIs;
    verbs["file"] = fileIs;
    verbs["no-file"] = [](World& world, const Step& step) {
        if (world.files().fileExists(step.word(1)))
            throw Difference(fmt::format("there is a file {}", step.word(1)));
    };
    verbs["timer"] = timerState;
    verbs["running"] = [](World& world, const Step&) {
        if (!world.running())
            throw Difference("the program has ended");
    };
    verbs["ended"] = [](World& world, const Step&) {
        if (world.running())
            throw Difference("the program still runs");
    };
    verbs["clipboard"] = [](World& world, const Step& step) {
        compare("clipboard", expectedText(step, 1), world.clipboardText());
    };
    verbs["opened"] = [](World& world, const Step& step) { compare("opened", step.word(1), world.lastOpened()); };
}

} // namespace quelvarn::scenario
