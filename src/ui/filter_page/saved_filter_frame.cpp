#include "ui/filter_page/saved_filter_frame.h"

#include "filter/filter_page.h"
#include "ui/busy_pointer.h"
#include "ui/controls/fields.h"
#include "ui/controls/strip.h"
#include "ui/controls/value_combo.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace quelvarn {

namespace {

QHBoxLayout* newStripRow(QWidget& part)
{
    auto* layoutRow = new QHBoxLayout(&part);
    layoutRow->setContentsMargins({});
    return layoutRow;
}

} // namespace

SavedFilterFrame::SavedFilterFrame(FilterPage& model)
    : QGroupBox(QStringLiteral("Filter sichern")), model_(model),
      LblAnzFilterwerte_(caption({}, TextRole::Small, QStringLiteral("LblAnzFilterwerte"))),
      CbFilterSave_(new ValueCombo(QStringLiteral("CbFilterSave"))), TxtFilterSave_(new QLineEdit)
{
    setObjectName(QStringLiteral("FrmFilterSave"));
    CbFilterSave_->setAccessibleName(QStringLiteral("Gespeicherte Filter"));
    auto* selection = new QWidget;
    auto* layoutRow = newStripRow(*selection);
    layoutRow->addWidget(CbFilterSave_, 1);
    layoutRow->addWidget(LblAnzFilterwerte_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 4, 10, 8);
    layout->setSpacing(6);
    layout->addWidget(selection);
    layout->addWidget(newSelection());
    layout->addWidget(newSave());
    layout->addStretch(1);
}

QWidget* SavedFilterFrame::newSelection()
{
    auto* part = new QWidget;
    auto* apply = newField<QPushButton>("CmFilterUse", QStringLiteral("Ver&wenden"));
    auto* remove = newField<QPushButton>("CmFilterDelete", QStringLiteral("&Löschen"));
    connect(apply, &QPushButton::clicked, this, guardedSlot([this] {
                const BusyCursor wait;
                model_.applySavedFilter(chosen());
            }));
    connect(remove, &QPushButton::clicked, this, guardedSlot([this] { model_.deleteSavedFilter(chosen()); }));
    auto* layoutRow = newStripRow(*part);
    layoutRow->addWidget(apply, 1);
    layoutRow->addWidget(remove, 1);
    return part;
}

QWidget* SavedFilterFrame::newSave()
{
    auto* part = new QWidget;
    TxtFilterSave_->setObjectName(QStringLiteral("TxtFilterSave"));
    TxtFilterSave_->setPlaceholderText(QStringLiteral("Name des Filters"));
    TxtFilterSave_->setAccessibleName(QStringLiteral("Name des Filters"));
    auto* save = newField<QPushButton>("CmFilterSave", QStringLiteral("&Speichern"));
    connect(save, &QPushButton::clicked, this, guardedSlot([this] {
                if (beforeSaving)
                    beforeSaving();
                if (model_.saveCurrentFilter(fromQt(TxtFilterSave_->text())))
                    TxtFilterSave_->clear();
            }));
    connect(TxtFilterSave_, &QLineEdit::returnPressed, save, &QPushButton::click);
    auto* layoutRow = newStripRow(*part);
    layoutRow->addWidget(TxtFilterSave_, 1);
    layoutRow->addWidget(save);
    return part;
}

std::string SavedFilterFrame::chosen() const
{
    return CbFilterSave_->currentIndex() < 0 ? std::string() : fromQt(CbFilterSave_->currentText());
}

void SavedFilterFrame::refresh()
{
    const auto names = model_.savedFilter();
    CbFilterSave_->display(names);
    LblAnzFilterwerte_->setText(QString::number(names.size()));
}

} // namespace quelvarn
