#include "ui/controls/value_combo.h"

#include "ui/controls/value_model.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QCompleter>
#include <QKeyEvent>
#include <QListView>
#include <QWheelEvent>

namespace quelvarn {

namespace {

constexpr int VISIBLE_ROWS = 18;

QListView* newList(QWidget* parent = nullptr)
{
    auto* list = new QListView(parent);
    list->setUniformItemSizes(true); // Otherwise every value is measured before the list opens.
    list->setTextElideMode(Qt::ElideRight);
    return list;
}

} // namespace

ValueCombo::ValueCombo(const QString& name) : model_(new ValueModel(this))
{
    setObjectName(name);
    setEditable(true);
    setInsertPolicy(NoInsert);
    setView(newList());
    setModel(model_);
    setMaxVisibleItems(VISIBLE_ROWS);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(10);
    auto* completer = new QCompleter(model_, this);
    completer->setFilterMode(Qt::MatchContains);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setMaxVisibleItems(VISIBLE_ROWS);
    completer->setPopup(newList());
    setCompleter(completer);
    connect(this, &QComboBox::activated, this, guardedSlot([this](int index) { notify(index); }));
}

void ValueCombo::display(const std::vector<std::string>& values, unsigned generation)
{
    const QSignalBlocker still(this);
    const bool other = model_->display(values);
    if (!other && generation == generation_)
        return;
    generation_ = generation;
    setCurrentIndex(-1);
    clearEditText();
}

void ValueCombo::showChosen(const std::string& value)
{
    if (currentText() == toQt(value))
        return;
    const QSignalBlocker still(this);
    setCurrentIndex(value.empty() ? -1 : findText(toQt(value)));
    setEditText(toQt(value)); // Also a pattern that is in no list.
}

void ValueCombo::notify(int index)
{
    if (chosen && index >= 0 && index < model_->rowCount())
        chosen(std::string(model_->value(index))); // A copy: the pick may fill the list anew.
}

void ValueCombo::showPopup()
{
    discardInput();
    QComboBox::showPopup();
}

void ValueCombo::discardInput()
{
    setEditText(currentIndex() < 0 ? QString() : itemText(currentIndex()));
}

// Keys and the wheel would walk through the values, and each step would be a pick.
void ValueCombo::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return showPopup();
    case Qt::Key_Escape:
        return discardInput();
    default:
        QComboBox::keyPressEvent(event);
    }
}

void ValueCombo::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

void ValueCombo::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    const bool list = event->reason() == Qt::PopupFocusReason;
    if (!list)
        discardInput();
}

// Esc first takes back what was typed; only then does it mean the page.
bool ValueCombo::event(QEvent* event)
{
    const bool esc =
        event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (!esc || currentText() == itemText(currentIndex()))
        return QComboBox::event(event);
    event->accept();
    return true;
}

} // namespace quelvarn
