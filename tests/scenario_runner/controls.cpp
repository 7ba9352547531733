#include "scenario_runner/controls.h"

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>

#include <fmt/format.h>

namespace quelvarn::scenario {

namespace {

void mustBeUsable(const QWidget& widget, const std::string& name)
{
    if (!widget.isVisible())
        throw Difference(fmt::format("{} is not visible", name));
    if (!widget.isEnabled())
        throw Difference(fmt::format("{} is disabled", name));
}

QString withoutMnemonic(QString text)
{
    return text.remove(QLatin1Char('&'));
}

QAbstractItemView& itemView(const std::string& name)
{
    auto* view = qobject_cast<QAbstractItemView*>(&control(name));
    if (view == nullptr)
        throw Difference(fmt::format("{} is no grid, list or tree", name));
    return *view;
}

void chooseTab(QTabBar& tabs, const std::string& name, const std::string& text)
{
    for (int i = 0; i < tabs.count(); ++i)
        if (withoutMnemonic(tabs.tabText(i)) == qt(text)) {
            if (!tabs.isTabEnabled(i))
                throw Difference(fmt::format("the tab \"{}\" of {} is disabled", text, name));
            QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(i).center());
            return;
        }
    throw Difference(fmt::format("{} has no tab \"{}\"", name, text));
}

void chooseInCombo(QComboBox& combo, const std::string& name, const std::string& text)
{
    const int index = combo.findText(qt(text));
    if (index < 0)
        throw Difference(fmt::format("{} has no entry \"{}\"", name, text));
    combo.setCurrentIndex(index);
    // The signal of a choice by hand.
    QMetaObject::invokeMethod(&combo, "activated", Q_ARG(int, index));
    QMetaObject::invokeMethod(&combo, "textActivated", Q_ARG(QString, qt(text)));
}

void appendTree(const QAbstractItemModel& model, const QModelIndex& parent, int level, std::vector<std::string>& lines)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const auto index = model.index(row, 0, parent);
        lines.push_back(std::string(static_cast<std::size_t>(level) * 2, ' ') + plain(index.data().toString()));
        appendTree(model, index, level + 1, lines);
    }
}

} // namespace

QString qt(const std::string& text)
{
    return QString::fromStdString(text);
}

std::string plain(const QString& text)
{
    return text.toStdString();
}

QWidget* findControl(const std::string& name)
{
    QWidget* found = nullptr;
    const auto wanted = qt(name);
    for (auto* widget : QApplication::allWidgets()) {
        if (widget->objectName() != wanted)
            continue;
        if (widget->isVisible())
            return widget;
        found = widget;
    }
    return found;
}

QWidget& control(const std::string& name)
{
    if (auto* found = findControl(name))
        return *found;
    throw Difference(fmt::format("there is no control \"{}\"", name));
}

QAbstractItemView& usableView(const std::string& name)
{
    auto& view = itemView(name);
    mustBeUsable(view, name);
    return view;
}

QModelIndex findEntry(const QAbstractItemModel& model, const QModelIndex& parent, const QString& text)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const auto index = model.index(row, 0, parent);
        if (index.data().toString() == text)
            return index;
        if (const auto found = findEntry(model, index, text); found.isValid())
            return found;
    }
    return {};
}

void clickIndex(QAbstractItemView& view, const QModelIndex& index, bool twice)
{
    view.scrollTo(index);
    const auto place = view.visualRect(index).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    if (twice)
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
}

QAction* findToolButton(const QWidget& bar, const std::string& caption)
{
    for (auto* action : bar.actions())
        if (withoutMnemonic(action->text()) == qt(caption) || action->objectName() == qt(caption))
            return action;
    // An entry of a button's menu, when the bar has no button of this name itself.
    for (auto* action : bar.actions())
        if (action->menu() != nullptr)
            if (auto* inner = findToolButton(*action->menu(), caption))
                return inner;
    return nullptr;
}

QAction& toolButton(const std::string& bar, const std::string& caption)
{
    if (auto* action = findToolButton(control(bar), caption))
        return *action;
    throw Difference(fmt::format("{} has no button \"{}\"", bar, caption));
}

void clickToolButton(const std::string& bar, const std::string& caption)
{
    auto& action = toolButton(bar, caption);
    if (!action.isVisible() || !action.isEnabled())
        throw Difference(
            fmt::format("the button \"{}\" of {} is {}", caption, bar, action.isVisible() ? "disabled" : "hidden"));
    auto* tools = qobject_cast<QToolBar*>(&control(bar));
    auto* button = tools != nullptr ? tools->widgetForAction(&action) : nullptr;
    if (button != nullptr && button->isVisible() && action.menu() == nullptr)
        QTest::mouseClick(button, Qt::LeftButton);
    else
        action.trigger();
}

void click(const std::string& name)
{
    auto& widget = control(name);
    mustBeUsable(widget, name);
    QTest::mouseClick(&widget, Qt::LeftButton);
}

void doubleClick(const std::string& name)
{
    auto& widget = control(name);
    mustBeUsable(widget, name);
    QTest::mouseDClick(&widget, Qt::LeftButton);
}

bool isTicked(const std::string& name)
{
    auto* button = qobject_cast<QAbstractButton*>(&control(name));
    if (button == nullptr)
        throw Difference(fmt::format("{} cannot be ticked", name));
    return button->isChecked();
}

void tick(const std::string& name, bool on)
{
    auto& widget = control(name);
    mustBeUsable(widget, name);
    if (isTicked(name) == on)
        return;
    static_cast<QAbstractButton&>(widget).click();
    if (isTicked(name) != on)
        throw Difference(fmt::format("{} did not take the tick", name));
}

void choose(const std::string& name, const std::string& text, bool twice)
{
    auto& widget = control(name);
    mustBeUsable(widget, name);
    if (auto* combo = qobject_cast<QComboBox*>(&widget))
        return chooseInCombo(*combo, name, text);
    if (auto* tabs = qobject_cast<QTabBar*>(&widget))
        return chooseTab(*tabs, name, text);
    if (auto* pages = qobject_cast<QTabWidget*>(&widget))
        return chooseTab(*pages->tabBar(), name, text);
    auto& view = itemView(name);
    const auto index = findEntry(*view.model(), view.rootIndex(), qt(text));
    if (!index.isValid())
        throw Difference(fmt::format("{} has no entry \"{}\"", name, text));
    clickIndex(view, index, twice);
}

void clickRow(const std::string& grid, int row, bool twice)
{
    auto& view = usableView(grid);
    const auto index = view.model()->index(row - 1, 0, view.rootIndex());
    if (!index.isValid())
        throw Difference(fmt::format("{} has no row {}", grid, row));
    clickIndex(view, index, twice);
}

// The toolkit's own simulation knows the keys of ASCII alone.
void typeKeys(QWidget& target, const QString& text)
{
    for (const char32_t character : text.toUcs4()) {
        const QString letter = QString::fromUcs4(&character, 1);
        if (character < 0x80)
            QTest::keyClicks(&target, letter);
        else
            QTest::sendKeyEvent(QTest::Click, &target, static_cast<Qt::Key>(QChar::toUpper(character)), letter, {});
    }
}

void typeText(const std::string& name, const std::string& text)
{
    auto& widget = control(name);
    mustBeUsable(widget, name);
    widget.setFocus();
    QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&widget, Qt::Key_Delete);
    typeKeys(widget, qt(text));
}

void slide(const std::string& name, int value)
{
    auto* slider = qobject_cast<QAbstractSlider*>(&control(name));
    if (slider == nullptr)
        throw Difference(fmt::format("{} is no slider", name));
    mustBeUsable(*slider, name);
    slider->setValue(value);
    if (slider->value() != value)
        throw Difference(fmt::format("{} has no place for {}", name, value));
}

void pressKey(const std::string& key)
{
    const auto sequence = QKeySequence::fromString(qt(key));
    if (sequence.isEmpty())
        throw Difference(fmt::format("there is no key \"{}\"", key));
    auto* target = QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : QApplication::activeWindow();
    if (target == nullptr)
        throw Difference("no control has the focus");
    QTest::keyClick(target, sequence[0].key(), sequence[0].keyboardModifiers());
}

void expand(const std::string& tree, const std::string& text, bool open)
{
    auto* view = qobject_cast<QTreeView*>(&itemView(tree));
    if (view == nullptr)
        throw Difference(fmt::format("{} is no tree", tree));
    const auto index = findEntry(*view->model(), {}, qt(text));
    if (!index.isValid())
        throw Difference(fmt::format("{} has no node \"{}\"", tree, text));
    view->setExpanded(index, open);
}

std::string textOf(const std::string& name)
{
    auto& widget = control(name);
    // A label may show a shortened text; the whole one is kept beside it.
    for (const char* property : {"fullText", "text", "currentText", "plainText", "title", "windowTitle"})
        if (const auto value = widget.property(property); value.isValid() && value.canConvert<QString>())
            return plain(value.toString());
    throw Difference(fmt::format("{} has no text", name));
}

std::string cellOf(const std::string& grid, int row, int column)
{
    auto& view = itemView(grid);
    const auto index = view.model()->index(row - 1, column - 1, view.rootIndex());
    if (!index.isValid())
        throw Difference(fmt::format("{} has no cell {}, {}", grid, row, column));
    return plain(index.data().toString());
}

int rowsOf(const std::string& grid)
{
    auto& view = itemView(grid);
    return view.model() != nullptr ? view.model()->rowCount(view.rootIndex()) : 0;
}

int currentRowOf(const std::string& grid)
{
    return itemView(grid).currentIndex().row() + 1;
}

std::vector<std::string> treeOf(const std::string& name)
{
    std::vector<std::string> lines;
    auto& view = itemView(name);
    if (view.model() != nullptr)
        appendTree(*view.model(), view.rootIndex(), 0, lines);
    return lines;
}

std::vector<std::string> entriesOf(const std::string& name)
{
    if (auto* combo = qobject_cast<QComboBox*>(&control(name))) {
        std::vector<std::string> entries;
        for (int i = 0; i < combo->count(); ++i)
            entries.push_back(plain(combo->itemText(i)));
        return entries;
    }
    if (const auto* menu = qobject_cast<QMenu*>(&control(name))) {
        std::vector<std::string> entries;
        for (const auto* action : menu->actions())
            entries.push_back(plain(withoutMnemonic(action->text())));
        return entries;
    }
    return treeOf(name);
}

} // namespace quelvarn::scenario
