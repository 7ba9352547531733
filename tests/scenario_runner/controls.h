#pragma once

#include "scenario_runner/script.h"

#include <QString>

#include <string>
#include <vector>

class QAbstractItemModel;
class QAbstractItemView;
class QAction;
class QModelIndex;
class QTreeView;
class QWidget;

// Finds controls by their names and does with them what a hand on mouse and keyboard would do.
namespace quelvarn::scenario {

// The control of this name, the visible one when several share it. Throws Difference when there is none.
QWidget& control(const std::string& name);
QWidget* findControl(const std::string& name);
// A grid, list or tree that is visible and enabled.
QAbstractItemView& usableView(const std::string& name);
// An entry at any depth; invalid when there is none.
QModelIndex findEntry(const QAbstractItemModel& model, const QModelIndex& parent, const QString& text);
void clickIndex(QAbstractItemView& view, const QModelIndex& index, bool twice);
// The button of a tool bar by its caption; nullptr when the bar has none.
QAction* findToolButton(const QWidget& bar, const std::string& caption);
QAction& toolButton(const std::string& bar, const std::string& caption);

void click(const std::string& name);
void clickToolButton(const std::string& bar, const std::string& caption);
void doubleClick(const std::string& name);
void tick(const std::string& name, bool on);
// An entry of a list, combo box, tab bar or tree by its text.
void choose(const std::string& name, const std::string& text, bool twice = false);
void clickRow(const std::string& grid, int row, bool twice);
// Any characters, as a keyboard that has keys for them.
void typeKeys(QWidget& target, const QString& text);
void typeText(const std::string& name, const std::string& text);
// A slider to a value.
void slide(const std::string& name, int value);
void pressKey(const std::string& key);
void expand(const std::string& tree, const std::string& text, bool open);

std::string textOf(const std::string& name);
std::string cellOf(const std::string& grid, int row, int column);
int rowsOf(const std::string& grid);
int currentRowOf(const std::string& grid);
bool isTicked(const std::string& name);
// Lines of a tree, two blanks a level.
std::vector<std::string> treeOf(const std::string& name);
std::vector<std::string> entriesOf(const std::string& name);

QString qt(const std::string& text);
std::string plain(const QString& text);

} // namespace quelvarn::scenario
