#include "ui/filter_page/user_defined_tab.h"

#include "filter/filter_page.h"
#include "ui/busy_pointer.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/fields.h"
#include "ui/controls/lock_look.h"
#include "ui/controls/strip.h"
#include "ui/controls/value_combo.h"
#include "ui/controls/value_list.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace quelvarn {

namespace {

// Places of Autor, Bearbeiter, Material and Projekt in the captions of tab 0.
constexpr std::array<int, ADDITIONAL_VALUE_COUNT> PROPERTIES{7, 9, 6, 1};

QLabel* newCount(const QString& name)
{
    auto* count = caption({}, TextRole::Caption, name);
    count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    count->setMinimumWidth(count->fontMetrics().horizontalAdvance(QStringLiteral("00000")));
    return count;
}

} // namespace

UserDefinedTab::UserDefinedTab(FilterPage& model)
    : model_(model), userDefined_(model.userDefined()), FrmBenutzDef_(new QGroupBox),
      LblAnzEigenBenutzDef_(newCount(QStringLiteral("LblAnzEigenBenutzDef"))),
      DLstBenutzDefName_(new ValueField(QStringLiteral("DLstBenutzDefName"))), LblNaemWert_(new ShortLabel),
      ChReceiver_(new QCheckBox(QStringLiteral("Empfänger"))),
      DLstBenutzDefWert_(new ValueField(QStringLiteral("DLstBenutzDefWert")))
{
    FrmBenutzDef_->setObjectName(QStringLiteral("FrmBenutzDef"));
    auto* lists = new QHBoxLayout(FrmBenutzDef_);
    lists->setSpacing(16);
    lists->addWidget(newNames(), 2);
    lists->addWidget(newValues(), 3);

    auto* right = new QVBoxLayout;
    right->addWidget(newAdditions());
    right->addStretch(1);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 4, 12, 8);
    layout->setSpacing(16);
    layout->addWidget(FrmBenutzDef_, 2);
    layout->addLayout(right, 1);
    setFocusProxy(DLstBenutzDefName_);
}

QWidget* UserDefinedTab::newNames()
{
    auto* part = new QWidget;
    auto* LblEigenBenutzDef =
        caption(QStringLiteral("Eigenschaft"), TextRole::Caption, QStringLiteral("LblEigenBenutzDef"));
    DLstBenutzDefName_->setAccessibleName(LblEigenBenutzDef->text());
    DLstBenutzDefName_->chosen = [this](const std::string& name) {
        const BusyCursor wait;
        userDefined_.nameChosen(name);
        refresh();
    };
    auto* layout = new QGridLayout(part);
    layout->setContentsMargins({});
    layout->setVerticalSpacing(4);
    layout->setRowMinimumHeight(0, ChReceiver_->sizeHint().height()); // Both lists begin on one line.
    layout->addWidget(LblEigenBenutzDef, 0, 0);
    layout->addWidget(LblAnzEigenBenutzDef_, 0, 1);
    layout->addWidget(DLstBenutzDefName_, 1, 0, 1, 2);
    layout->setColumnStretch(0, 1);
    return part;
}

QWidget* UserDefinedTab::newValues()
{
    auto* part = new QWidget;
    LblNaemWert_->setObjectName(QStringLiteral("LblNaemWert"));
    setRole(*LblNaemWert_, TextRole::Heading);
    ChReceiver_->setObjectName(QStringLiteral("ChReceiver"));
    ChReceiver_->setToolTip(QStringLiteral("Empfänger statt ihrer Kennung auflisten"));
    connect(ChReceiver_, &QCheckBox::clicked, this, guardedSlot([this](bool on) {
                const BusyCursor wait;
                userDefined_.setReceiver(on);
                refresh();
            }));
    DLstBenutzDefWert_->setAccessibleName(QStringLiteral("Wert"));
    DLstBenutzDefWert_->chosen = [this](const std::string& value) {
        userDefined_.valueChosen(value);
        DLstBenutzDefWert_->mark({}); // The grid of the filter values has it now, or it was refused.
        refresh();
    };
    auto* layout = new QGridLayout(part);
    layout->setContentsMargins({});
    layout->setVerticalSpacing(4);
    layout->addWidget(caption(QStringLiteral("Werte"), TextRole::Caption), 0, 0);
    layout->addWidget(LblNaemWert_, 0, 1);
    layout->addWidget(ChReceiver_, 0, 2);
    layout->addWidget(DLstBenutzDefWert_, 1, 0, 1, 3);
    layout->setColumnStretch(1, 1);
    return part;
}

QWidget* UserDefinedTab::newAdditions()
{
    auto* frame = new QGroupBox(QStringLiteral("Zusätzlich, höchstens zwei"));
    auto* grid = new QGridLayout(frame);
    grid->setColumnStretch(1, 1);
    for (int i = 0; i < ADDITIONAL_VALUE_COUNT; ++i) {
        const auto position = static_cast<std::size_t>(i);
        additionalLabels_[position] = caption({}, TextRole::Caption);
        additionalCounts_[position] = newCount({});
        CbEigenBenutzDef_[position] = new ValueCombo(QStringLiteral("CbEigenBenutzDef(%1)").arg(i));
        CbEigenBenutzDef_[position]->chosen = [this, i](const std::string& value) {
            userDefined_.additionChosen(i, value);
            refresh();
        };
        additionalLabels_[position]->setBuddy(CbEigenBenutzDef_[position]);
        grid->addWidget(additionalLabels_[position], i, 0);
        grid->addWidget(CbEigenBenutzDef_[position], i, 1);
        grid->addWidget(additionalCounts_[position], i, 2);
    }
    return frame;
}

void UserDefinedTab::refresh()
{
    const bool locked = !userDefined_.SperreBenutzDef();
    showLocked(*FrmBenutzDef_, QStringLiteral("Benutzerdefinierte Eigenschaften"), locked);
    showLocked(*DLstBenutzDefName_, locked);
    showLocked(*DLstBenutzDefWert_, locked);
    LblAnzEigenBenutzDef_->setText(toQt(userDefined_.names().count));
    DLstBenutzDefName_->display(userDefined_.names().values);
    DLstBenutzDefName_->mark(userDefined_.name());
    LblNaemWert_->setText(toQt(userDefined_.name()));
    showSet(*ChReceiver_, userDefined_.ChReceiver());
    DLstBenutzDefWert_->display(userDefined_.values().values);
    showAdditions();
}

void UserDefinedTab::showAdditions()
{
    for (int i = 0; i < ADDITIONAL_VALUE_COUNT; ++i) {
        const auto position = static_cast<std::size_t>(i);
        const QString text = toQt(model_.properties().label(PROPERTIES[position]));
        additionalLabels_[position]->setText(text);
        CbEigenBenutzDef_[position]->setAccessibleName(text);
        CbEigenBenutzDef_[position]->display(userDefined_.addition(i).values);
        CbEigenBenutzDef_[position]->showChosen(additionalValue(model_.context().state(), position));
        additionalCounts_[position]->setText(toQt(userDefined_.addition(i).count));
    }
}

} // namespace quelvarn
