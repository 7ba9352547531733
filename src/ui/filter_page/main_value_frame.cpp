#include "ui/filter_page/main_value_frame.h"

#include "filter/structure_section.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/fields.h"
#include "ui/controls/lock_look.h"
#include "ui/controls/strip.h"
#include "ui/controls/value_list.h"
#include "ui/controls/value_model.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "ui/value_text.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>

namespace quelvarn {

namespace {

constexpr int NAME_LENGTH = 22; // Letters of a value's name; a longer one is shortened.

QLabel* newCount(const char* name, const QString& ofWhich)
{
    auto* count = caption({}, TextRole::Caption, QLatin1String(name));
    count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    count->setAccessibleName(ofWhich);
    return count;
}

void showName(QRadioButton& button, const QString& name)
{
    if (button.property("fullText").toString() == name)
        return;
    button.setProperty("fullText", name);
    const QFontMetrics metric = button.fontMetrics();
    const QString shortText = metric.elidedText(oneLine(name), Qt::ElideRight, metric.averageCharWidth() * NAME_LENGTH);
    button.setText(asCaption(shortText));
    button.setToolTip(shortText == name ? QString() : asTip(name));
    button.setAccessibleName(name);
}

} // namespace

MainValueFrame::MainValueFrame(StructureSection& model)
    : model_(model), selection_(new QButtonGroup(this)), CbHW_(new QComboBox), values_(new ValueModel(this)),
      ChShowAnzWerte_(newField<QCheckBox>("ChShowAnzWerte", QStringLiteral("Werte auflisten"))),
      LblAnzWert_(newCount("LblAnzWert", QStringLiteral("Anzahl Werte"))), TextBB_(new QLineEdit),
      CmHwOK_(new QPushButton(QStringLiteral("Übernehmen"))),
      ChShowAnzAlias_(newField<QCheckBox>("ChShowAnzAlias", QStringLiteral("Aliasse auflisten"))),
      LblAnzAlias_(newCount("LblAnzAlias", QStringLiteral("Anzahl Aliasse"))),
      LstHW_(new ValueField(QStringLiteral("LstHW")))
{
    setObjectName(QStringLiteral("FrmHWag"));
    auto* right = new QVBoxLayout;
    right->setSpacing(4);
    buildValue(*right);
    buildAlias(*right);
    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(16);
    layout->addWidget(newMainValues(), 1);
    layout->addLayout(right, 1);
    connectControls();
}

QWidget* MainValueFrame::newMainValues()
{
    auto* part = new QWidget;
    auto* grid = new QGridLayout(part);
    grid->setContentsMargins({});
    grid->setColumnStretch(1, 1);
    for (int i = 0; i < MAIN_VALUE_COUNT; ++i) {
        const auto position = static_cast<std::size_t>(i);
        const QChar letter(u'a' + i);
        LblHW_[position] = new QRadioButton;
        LblHW_[position]->setObjectName(QStringLiteral("LblHW") + letter);
        selection_->addButton(LblHW_[position], i);
        Lbl_hw_[position] = new ShortLabel;
        Lbl_hw_[position]->setObjectName(QStringLiteral("Lbl_hw") + letter);
        Lbl_hw_[position]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(LblHW_[position], i, 0, Qt::AlignLeft);
        grid->addWidget(Lbl_hw_[position], i, 1);
    }
    grid->setRowStretch(MAIN_VALUE_COUNT, 1);
    return part;
}

void MainValueFrame::buildValue(QVBoxLayout& layout)
{
    CbHW_->setObjectName(QStringLiteral("CbHW"));
    CbHW_->setAccessibleName(QStringLiteral("Hauptwert"));
    CbHW_->setEditable(true);
    CbHW_->setInsertPolicy(QComboBox::NoInsert);
    CbHW_->setCompleter(nullptr);
    auto* list = new QListView;
    list->setUniformItemSizes(true);
    CbHW_->setView(list);
    CbHW_->setModel(values_);
    CbHW_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    TextBB_->setObjectName(QStringLiteral("TextBB"));
    TextBB_->setMaximumWidth(fontMetrics().averageCharWidth() * 12);
    CmHwOK_->setObjectName(QStringLiteral("CmHwOK"));
    auto* LblBandBreite = caption(QStringLiteral("&Bandbreite ±"), TextRole::Caption, QStringLiteral("LblBandBreite"));
    LblBandBreite->setBuddy(TextBB_);

    auto* heading = new QHBoxLayout;
    heading->addWidget(ChShowAnzWerte_);
    heading->addWidget(LblAnzWert_, 1);
    auto* band = new QHBoxLayout;
    band->addWidget(LblBandBreite);
    band->addWidget(TextBB_, 1);
    band->addStretch();
    band->addWidget(CmHwOK_);
    layout.addLayout(heading);
    layout.addWidget(CbHW_);
    layout.addLayout(band);
}

void MainValueFrame::buildAlias(QVBoxLayout& layout)
{
    LstHW_->setAccessibleName(QStringLiteral("Aliasse des Hauptwerts"));
    auto* heading = new QHBoxLayout;
    heading->addWidget(ChShowAnzAlias_);
    heading->addWidget(LblAnzAlias_, 1);
    layout.addLayout(heading);
    LstHW_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // What the fields above leave.
    layout.addWidget(LstHW_, 1);
}

void MainValueFrame::connectControls()
{
    connect(selection_, &QButtonGroup::idClicked, this,
            guardedSlot([this](int mainValue) { model_.mainValues().chooseLabel(mainValue); }));
    connect(ChShowAnzWerte_, &QCheckBox::clicked, this,
            guardedSlot([this](bool on) { model_.mainValues().showValueCount(on); }));
    connect(ChShowAnzAlias_, &QCheckBox::clicked, this,
            guardedSlot([this](bool on) { model_.mainValues().showAliasCount(on); }));
    connect(CbHW_, &QComboBox::editTextChanged, this, [this] { showReady(); });
    connect(CmHwOK_, &QPushButton::clicked, this, guardedSlot([this] { adopt(); }));
    connect(CbHW_->lineEdit(), &QLineEdit::returnPressed, CmHwOK_, &QPushButton::click);
    connect(TextBB_, &QLineEdit::returnPressed, CmHwOK_, &QPushButton::click);
}

void MainValueFrame::adopt()
{
    model_.adoptMainValue(fromQt(CbHW_->currentText()), fromQt(TextBB_->text()));
}

void MainValueFrame::refresh()
{
    showLocked(*this, QStringLiteral("Hauptwerte"), !model_.SperreHauptwert());
    showMainValues();
    {
        const QSignalBlocker still(CbHW_);
        if (values_->display(model_.mainValues().values().values))
            CbHW_->setCurrentIndex(-1);
    }
    CbHW_->setEnabled(model_.SperreHauptwert());
    showSet(*ChShowAnzWerte_, model_.mainValues().showsValueCount());
    showSet(*ChShowAnzAlias_, model_.mainValues().showsAliasCount());
    LblAnzWert_->setText(toQt(model_.mainValues().values().count));
    LblAnzAlias_->setText(toQt(model_.mainValues().alias().count));
    LstHW_->display(model_.mainValues().alias().values);
    showReady();
}

void MainValueFrame::showMainValues()
{
    for (int i = 0; i < MAIN_VALUE_COUNT; ++i) {
        const auto position = static_cast<std::size_t>(i);
        showName(*LblHW_[position], toQt(model_.mainValues().name(i)));
        showSet(*LblHW_[position], model_.mainValues().chosen() == i);
        Lbl_hw_[position]->setText(toQt(model_.mainValues().band(i)));
    }
}

void MainValueFrame::showReady()
{
    CmHwOK_->setEnabled(model_.SperreHauptwert() && !CbHW_->currentText().trimmed().isEmpty());
}

} // namespace quelvarn
