#include "ui/filter_page/property_tab.h"

#include "filter/filter_page.h"
#include "ui/busy_pointer.h"
#include "ui/controls/calendar.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/fields.h"
#include "ui/controls/strip.h"
#include "ui/controls/value_combo.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QSignalBlocker>

namespace quelvarn {

namespace {

constexpr std::array<const char*, PROPERTY_COUNT> LABELS{
    "LblProjektCb", "LblTitelCb",   "LblThemaCb",      "LblFirmaCb",    "LblKategorieCb", "LblMaterialCb",
    "LblAutorCb",   "LblManagerCb", "LblBearbeiterCb", "LblHauptMerkA", "LblHauptMerkB",  "LblKeywordCb",
};
constexpr std::array<const char*, 2> DATE_KINDS{"&Erstellt", "&Geändert"};
constexpr std::array<const char*, 3> BOUNDS{">=  a&b dem Datum", "=  a&m Datum", "<=  b&is zum Datum"};

// Options of one frame, one below the other.
template <std::size_t Count, typename Choice>
void fillOptions(QGroupBox& frame, const char* name, const std::array<const char*, Count>& texts,
                 std::array<QAbstractButton*, Count>& buttons, const Choice& choice)
{
    auto* layout = new QVBoxLayout(&frame);
    layout->setContentsMargins(10, 4, 10, 6);
    layout->setSpacing(4);
    for (std::size_t i = 0; i < Count; ++i) {
        auto* button = newField<QRadioButton>(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(i),
                                              QString::fromUtf8(texts[i]));
        QObject::connect(button, &QRadioButton::clicked, &frame,
                         guardedSlot([choice, i] { choice(static_cast<int>(i)); }));
        buttons[i] = button;
        layout->addWidget(button);
    }
}

} // namespace

PropertyTab::PropertyTab(FilterPage& model) : model_(model)
{
    auto* left = newProperties();
    auto* middle = new QVBoxLayout;
    middle->setSpacing(6);
    middle->addWidget(newStatuses());
    middle->addWidget(newDateKind());
    middle->addStretch(1);
    auto* right = new QVBoxLayout;
    right->setSpacing(6);
    right->addWidget(newCalendar());
    right->addWidget(newBound());
    right->addStretch(1);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 4, 12, 0);
    layout->setSpacing(12);
    layout->addWidget(left, 1);
    layout->addLayout(middle);
    layout->addLayout(right);
    setFocusProxy(CbEigen_.front());
}

// --- properties ------------------------------------------------------------------------------------------------

QWidget* PropertyTab::newProperties()
{
    auto* part = new QWidget;
    part->setObjectName(QStringLiteral("FrmTabEigen"));
    auto* grid = new QGridLayout(part);
    grid->setContentsMargins(0, 4, 0, 0);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(3);
    grid->setColumnStretch(1, 1);
    for (int index = 1; index <= PROPERTY_COUNT; ++index)
        newProperty(index, *grid);
    grid->setRowStretch(PROPERTY_COUNT + 1, 1);
    return part;
}

void PropertyTab::newProperty(int index, QGridLayout& grid)
{
    const auto position = static_cast<std::size_t>(index - 1);
    auto* label = new ShortLabel;
    label->setObjectName(QLatin1String(LABELS[position]));
    label->setFixedWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("Hauptmerkmal A")) + 8);
    setRole(*label, TextRole::Caption);
    auto* combo = new ValueCombo(QStringLiteral("CbEigen(%1)").arg(index));
    combo->chosen = [this, index](const std::string& value) { model_.properties().valueChosen(index, value); };
    auto* count = caption({}, TextRole::Caption, QStringLiteral("LblAnzEigen(%1)").arg(index));
    count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    count->setMinimumWidth(count->fontMetrics().horizontalAdvance(QStringLiteral("000000")));
    grid.addWidget(captions_[position] = label, index, 0);
    grid.addWidget(CbEigen_[position] = combo, index, 1);
    grid.addWidget(LblAnzEigen_[position] = count, index, 2);
}

void PropertyTab::showProperties()
{
    const PropertySection& section = model_.properties();
    for (int index = 1; index <= PROPERTY_COUNT; ++index) {
        const auto position = static_cast<std::size_t>(index - 1);
        const QString label = toQt(section.label(index));
        captions_[position]->setText(label);
        CbEigen_[position]->setAccessibleName(label);
        CbEigen_[position]->display(section.list(index).values, model_.listGeneration());
        LblAnzEigen_[position]->setText(toQt(section.list(index).count));
    }
}

// --- statuses --------------------------------------------------------------------------------------------------

QWidget* PropertyTab::newStatuses()
{
    auto* frame = newField<QGroupBox>("FrmChStatus", QStringLiteral("Status"));
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(10, 4, 10, 6);
    layout->setSpacing(4);
    for (std::size_t status = 0; status < ChFilterStat_.size(); ++status) {
        auto* box = new QCheckBox(QStringLiteral("%1 %2").arg(status).arg(toQt(STATUS[status].name)));
        connect(box, &QCheckBox::clicked, this, guardedSlot([this, status](bool on) {
                    model_.properties().statusChosen(static_cast<int>(status), on);
                }));
        layout->addWidget(ChFilterStat_[status] = box);
    }
    auto* FrmStatLeg = new QWidget;
    FrmStatLeg->setObjectName(QStringLiteral("FrmStatLeg"));
    auto* layoutRow = new QHBoxLayout(FrmStatLeg);
    layoutRow->setContentsMargins({});
    layoutRow->addWidget(legend_ = caption({}, TextRole::Caption, QStringLiteral("LblStatLeg")));
    layout->addWidget(FrmStatLeg);
    return frame;
}

void PropertyTab::showStatuses()
{
    const int tab = model_.context().tab;
    const auto& tick = model_.context().state().ChFilterStat;
    for (std::size_t status = 0; status < ChFilterStat_.size(); ++status) {
        QCheckBox& box = *ChFilterStat_[status];
        box.setObjectName(QStringLiteral("ChFilterStat(%1)").arg(tab * 10 + static_cast<int>(status)));
        box.setEnabled(model_.properties().statusExists(static_cast<int>(status)));
        showSet(box, tick[status]);
    }
    const StatusCondition& condition = model_.context().filter.status;
    legend_->setText(condition.shortText.empty() ? QStringLiteral("Alle Stati") : toQt("Status" + condition.shortText));
    showNote(*legend_, condition.isSet());
}

// --- dates -----------------------------------------------------------------------------------------------------

QWidget* PropertyTab::newDateKind()
{
    auto* frame = newField<QGroupBox>("frmDatum", QStringLiteral("Datum"));
    fillOptions(*frame, "OpDat", DATE_KINDS, OpDat_, [this](int field) { model_.properties().setDateField(field); });
    return frame;
}

QWidget* PropertyTab::newBound()
{
    auto* frame = newField<QGroupBox>("frmDatumBegr", QStringLiteral("Begrenzung"));
    fillOptions(*frame, "OpDatBegr", BOUNDS, OpDatBegr_, [this](int bound) { model_.properties().setBound(bound); });
    return frame;
}

QWidget* PropertyTab::newCalendar()
{
    auto* frame = newField<QGroupBox>("FrmKalender", QStringLiteral("Tag wählen"));
    MonthViewEigen_ = new Calendar("MonthViewEigen");
    MonthViewEigen_->chosen = [this](const QDate& day) { dateChosen(day); };
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(4, 2, 4, 4);
    layout->addWidget(MonthViewEigen_);
    return frame;
}

void PropertyTab::dateChosen(const QDate& day)
{
    model_.properties().dateChosen(DateTime::from({day.year(), day.month(), day.day()}));
    if (dateAdopted)
        dateAdopted();
}

void PropertyTab::showDate()
{
    for (std::size_t i = 0; i < OpDat_.size(); ++i)
        showSet(*OpDat_[i], model_.properties().OpDat() == static_cast<int>(i));
    for (std::size_t i = 0; i < OpDatBegr_.size(); ++i)
        showSet(*OpDatBegr_[i], model_.properties().OpDatBegr() == static_cast<int>(i));
}

void PropertyTab::showToday()
{
    const CalendarTime today = model_.today().calendar();
    const QSignalBlocker still(MonthViewEigen_);
    MonthViewEigen_->setSelectedDate({today.year, today.month, today.day});
}

void PropertyTab::refresh()
{
    showProperties();
    showStatuses();
    showDate();
}

} // namespace quelvarn
