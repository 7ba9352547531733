#include "scenario_runner/entries.h"

#include "scenario_runner/controls.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QComboBox>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace quelvarn::scenario {

namespace {

QModelIndex childOf(const QAbstractItemModel& model, const QModelIndex& parent, const std::string& text)
{
    for (int row = 0; row < model.rowCount(parent); ++row)
        if (const auto index = model.index(row, 0, parent); index.data().toString() == qt(text))
            return index;
    return {};
}

// The days of the month shown stand between two first days: this month's and the next one's.
QModelIndex cellOfDay(const QAbstractItemModel& month, int day)
{
    bool begun = false;
    for (int row = 1; row < month.rowCount(); ++row)
        for (int column = 0; column < month.columnCount(); ++column) {
            const auto cell = month.index(row, column);
            begun = begun || cell.data().toInt() == 1;
            if (begun && cell.data().toInt() == day)
                return cell;
        }
    return {};
}

} // namespace

void clickNode(const std::string& tree, const std::vector<std::string>& path)
{
    auto& view = usableView(tree);
    auto node = findEntry(*view.model(), {}, qt(path.front()));
    for (std::size_t level = 1; level < path.size() && node.isValid(); ++level)
        node = childOf(*view.model(), node, path[level]);
    if (!node.isValid())
        throw Difference(fmt::format("{} has no node \"{}\"", tree, fmt::join(path, "\" \"")));
    clickIndex(view, node, false);
}

void editCell(const std::string& grid, int row, int column, const std::string& text, bool finish)
{
    auto& view = usableView(grid);
    const auto cell = view.model()->index(row - 1, column - 1);
    if (!cell.isValid() || !cell.flags().testFlag(Qt::ItemIsEditable))
        throw Difference(fmt::format("{} has no cell {}, {} to write into", grid, row, column));
    clickIndex(view, cell, false);
    view.setCurrentIndex(cell);
    view.edit(cell);
    auto* editor = view.viewport()->findChild<QLineEdit*>();
    if (editor == nullptr)
        throw Difference(fmt::format("cell {}, {} of {} does not open", row, column, grid));
    editor->selectAll();
    typeKeys(*editor, qt(text));
    if (finish)
        QTest::keyClick(editor, Qt::Key_Return);
}

void clickDay(const std::string& calendar, const std::string& day)
{
    auto* widget = qobject_cast<QCalendarWidget*>(&control(calendar));
    const auto date = QDate::fromString(qt(day), QStringLiteral("dd.MM.yyyy"));
    auto* month = widget != nullptr ? widget->findChild<QTableView*>() : nullptr;
    if (month == nullptr || !date.isValid() || !widget->isVisible())
        throw Difference(fmt::format("{} has no day \"{}\"", calendar, day));
    widget->setCurrentPage(date.year(), date.month());
    clickIndex(*month, cellOfDay(*month->model(), date.day()), false);
}

std::vector<std::string> linesOf(const std::string& name, int columns)
{
    if (qobject_cast<QComboBox*>(&control(name)) != nullptr)
        return entriesOf(name);
    std::vector<std::string> lines;
    for (int row = 1; row <= rowsOf(name); ++row) {
        lines.push_back(cellOf(name, row, 1));
        for (int column = 2; column <= columns; ++column)
            lines.back() += " ; " + cellOf(name, row, column);
    }
    return lines;
}

} // namespace quelvarn::scenario
