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

constexpr int SICHTBARE_ZEILEN = 18;

QListView* neueListe(QWidget* eltern = nullptr)
{
    auto* liste = new QListView(eltern);
    liste->setUniformItemSizes(true); // Otherwise every value is measured before the list opens.
    liste->setTextElideMode(Qt::ElideRight);
    return liste;
}

} // namespace

Wertekombo::Wertekombo(const QString& name) : modell_(new Wertemodell(this))
{
    setObjectName(name);
    setEditable(true);
    setInsertPolicy(NoInsert);
    setView(neueListe());
    setModel(modell_);
    setMaxVisibleItems(SICHTBARE_ZEILEN);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(10);
    auto* ergaenzer = new QCompleter(modell_, this);
    ergaenzer->setFilterMode(Qt::MatchContains);
    ergaenzer->setCaseSensitivity(Qt::CaseInsensitive);
    ergaenzer->setMaxVisibleItems(SICHTBARE_ZEILEN);
    ergaenzer->setPopup(neueListe());
    setCompleter(ergaenzer);
    connect(this, &QComboBox::activated, this, bewacht([this](int index) { melde(index); }));
}

void Wertekombo::zeige(const std::vector<std::string>& werte, unsigned fassung)
{
    const QSignalBlocker still(this);
    const bool andere = modell_->zeige(werte);
    if (!andere && fassung == fassung_)
        return;
    fassung_ = fassung;
    setCurrentIndex(-1);
    clearEditText();
}

void Wertekombo::zeigeGewaehlt(const std::string& wert)
{
    if (currentText() == zuQt(wert))
        return;
    const QSignalBlocker still(this);
    setCurrentIndex(wert.empty() ? -1 : findText(zuQt(wert)));
    setEditText(zuQt(wert)); // Also a pattern that is in no list.
}

void Wertekombo::melde(int index)
{
    if (gewaehlt && index >= 0 && index < modell_->rowCount())
        gewaehlt(std::string(modell_->wert(index))); // A copy: the pick may fill the list anew.
}

void Wertekombo::showPopup()
{
    verwirfEingabe();
    QComboBox::showPopup();
}

void Wertekombo::verwirfEingabe()
{
    setEditText(currentIndex() < 0 ? QString() : itemText(currentIndex()));
}

// Keys and the wheel would walk through the values, and each step would be a pick.
void Wertekombo::keyPressEvent(QKeyEvent* ereignis)
{
    switch (ereignis->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return showPopup();
    case Qt::Key_Escape:
        return verwirfEingabe();
    default:
        QComboBox::keyPressEvent(ereignis);
    }
}

void Wertekombo::wheelEvent(QWheelEvent* ereignis)
{
    ereignis->ignore();
}

void Wertekombo::focusOutEvent(QFocusEvent* ereignis)
{
    QComboBox::focusOutEvent(ereignis);
    const bool liste = ereignis->reason() == Qt::PopupFocusReason;
    if (!liste)
        verwirfEingabe();
}

// Esc first takes back what was typed; only then does it mean the page.
bool Wertekombo::event(QEvent* ereignis)
{
    const bool esc =
        ereignis->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(ereignis)->key() == Qt::Key_Escape;
    if (!esc || currentText() == itemText(currentIndex()))
        return QComboBox::event(ereignis);
    ereignis->accept();
    return true;
}

} // namespace quelvarn
