#include "ui/filter_page/structure_tab.h"

#include "filter/filter_page.h"
#include "ui/busy_pointer.h"
#include "ui/controls/click_choice.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/lock_look.h"
#include "ui/controls/strip.h"
#include "ui/controls/value_combo.h"
#include "ui/filter_page/feature_tree.h"
#include "ui/filter_page/main_value_frame.h"
#include "ui/text.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QTreeView>

#include <algorithm>

namespace quelvarn {

namespace {

constexpr int PROPERTY_COMPANY = 4; // Places in the captions of tab 0.
constexpr int PROPERTY_MATERIAL = 6;

QLabel* newCount(const char* name)
{
    auto* count = caption({}, TextRole::Caption, QLatin1String(name));
    count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    count->setMinimumWidth(count->fontMetrics().horizontalAdvance(QStringLiteral("00000")));
    return count;
}

// The value of the step of a column, "" when there is none.
std::string valueOf(const FilterContext& context, std::string_view Feldname)
{
    const auto steps = filledSteps(context.state());
    const auto step = std::ranges::find(steps, Feldname, &FilterStep::Feldname);
    return step != steps.end() ? step->value : std::string();
}

} // namespace

StructureTab::StructureTab(FilterPage& model)
    : model_(model), structure_(model.structure()), FrmTreeViemerk_(new QGroupBox), TreeViewStrukMerk_(new QTreeView),
      node_(new FeatureTree(this)), statusRow_(new ShortLabel), FrmMarterialFirma_(new QGroupBox),
      CbMaterialMW_(new ValueCombo(QStringLiteral("CbMaterialMW"))),
      CbFirmaMW_(new ValueCombo(QStringLiteral("CbFirmaMW"))), LblMaterialMW_(caption({}, TextRole::Caption)),
      LblFirmaMW_(caption({}, TextRole::Caption)), LblAnzMaterialMW_(newCount("LblAnzMaterialMW")),
      LblAnzFirmaMW_(newCount("LblAnzFirmaMW")), FrmHWag_(new MainValueFrame(structure_)),
      TxtPfadDateiVorlage_(new ShortLabel(nullptr, Qt::ElideMiddle))
{
    auto* right = new QVBoxLayout;
    right->addWidget(newMaterialFirma());
    right->addWidget(FrmHWag_, 1);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(12, 4, 12, 8);
    layout->setHorizontalSpacing(16);
    layout->addWidget(newTree(), 0, 0);
    layout->addLayout(right, 0, 1);
    layout->addWidget(newTemplate(), 1, 0, 1, 2);
    layout->setColumnStretch(0, 2);
    layout->setColumnStretch(1, 3);
    layout->setRowStretch(0, 1);
    setFocusProxy(TreeViewStrukMerk_);
}

QWidget* StructureTab::newTree()
{
    FrmTreeViemerk_->setObjectName(QStringLiteral("FrmTreeViemerk"));
    TreeViewStrukMerk_->setObjectName(QStringLiteral("TreeViewStrukMerk"));
    TreeViewStrukMerk_->setAccessibleName(QStringLiteral("Strukturmerkmale"));
    TreeViewStrukMerk_->setProperty("framed", true);
    TreeViewStrukMerk_->setHeaderHidden(true);
    TreeViewStrukMerk_->setUniformRowHeights(true);
    TreeViewStrukMerk_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    TreeViewStrukMerk_->setExpandsOnDoubleClick(false);
    TreeViewStrukMerk_->setModel(node_);
    TreeViewStrukMerk_->expand(node_->find({}));
    statusRow_->setObjectName(QStringLiteral("LblStatusStrukMerk"));
    setRole(*statusRow_, TextRole::Small);
    choosesByClick(*TreeViewStrukMerk_, [this](const QModelIndex& position) { nodeChosen(position); });
    auto* layout = new QVBoxLayout(FrmTreeViemerk_);
    layout->setSpacing(4);
    layout->addWidget(TreeViewStrukMerk_, 1);
    layout->addWidget(statusRow_);
    return FrmTreeViemerk_;
}

QWidget* StructureTab::newMaterialFirma()
{
    FrmMarterialFirma_->setObjectName(QStringLiteral("FrmMarterialFirma"));
    auto* grid = new QGridLayout(FrmMarterialFirma_);
    grid->setColumnStretch(1, 1);
    auto row = [grid, number = 0](QLabel* text, ValueCombo* combo, QLabel* count) mutable {
        text->setBuddy(combo);
        grid->addWidget(text, number, 0);
        grid->addWidget(combo, number, 1);
        grid->addWidget(count, number++, 2);
    };
    row(LblMaterialMW_, CbMaterialMW_, LblAnzMaterialMW_);
    row(LblFirmaMW_, CbFirmaMW_, LblAnzFirmaMW_);
    CbMaterialMW_->chosen = [this](const std::string& value) {
        structure_.materialChosen(value);
        refresh();
    };
    CbFirmaMW_->chosen = [this](const std::string& value) {
        structure_.companyChosen(value);
        refresh();
    };
    return FrmMarterialFirma_;
}

QWidget* StructureTab::newTemplate()
{
    auto* part = new QWidget;
    TxtPfadDateiVorlage_->setObjectName(QStringLiteral("TxtPfadDateiVorlage"));
    TxtPfadDateiVorlage_->setAccessibleName(QStringLiteral("Pfad der Vorlage"));
    auto* layoutRow = new QHBoxLayout(part);
    layoutRow->setContentsMargins({});
    layoutRow->addWidget(caption(QStringLiteral("Vorlage"), TextRole::Caption));
    layoutRow->addWidget(TxtPfadDateiVorlage_, 1);
    return part;
}

void StructureTab::nodeChosen(const QModelIndex& position)
{
    const BusyCursor wait;
    const auto documentPath = node_->documentPath(position);
    shownPath_.reset(); // A refused choice goes back to the node before.
    if (documentPath.empty())
        TreeViewStrukMerk_->expand(position);
    structure_.nodeChosen(documentPath);
    refresh();
}

void StructureTab::refresh()
{
    showTree();
    showMaterialCompany();
    FrmHWag_->refresh();
    TxtPfadDateiVorlage_->setText(toQt(structure_.drawingTemplate()));
}

void StructureTab::showTree()
{
    showLocked(*FrmTreeViemerk_, QStringLiteral("Strukturmerkmale"), !structure_.SperreBaum());
    showLocked(*TreeViewStrukMerk_, !structure_.SperreBaum());
    node_->display(structure_.root());
    TreeViewStrukMerk_->expand(node_->find({}));
    const auto& documentPath = structure_.lastPath();
    const QModelIndex position = node_->find(documentPath);
    statusRow_->setText(node_->statusRow(position));
    if (shownPath_ == documentPath && TreeViewStrukMerk_->currentIndex().isValid())
        return;
    shownPath_ = documentPath;
    TreeViewStrukMerk_->setCurrentIndex(position);
    TreeViewStrukMerk_->expand(position);
    // The next choice is among the children: as many of them in sight as there is room for.
    TreeViewStrukMerk_->scrollTo(node_->index(node_->rowCount(position) - 1, 0, position));
    TreeViewStrukMerk_->scrollTo(position);
}

void StructureTab::showMaterialCompany()
{
    const bool material = structure_.SperreMaterial();
    const bool company = structure_.SperreFirma();
    showLocked(*FrmMarterialFirma_, QStringLiteral("Innerhalb der Struktur"), !material && !company);
    showLocked(*CbMaterialMW_, !material);
    showLocked(*CbFirmaMW_, !company);
    LblMaterialMW_->setText(toQt(model_.properties().label(PROPERTY_MATERIAL)));
    LblFirmaMW_->setText(toQt(model_.properties().label(PROPERTY_COMPANY)));
    CbMaterialMW_->display(structure_.material().values);
    CbFirmaMW_->display(structure_.company().values);
    CbMaterialMW_->showChosen(valueOf(model_.context(), "Material"));
    CbFirmaMW_->showChosen(valueOf(model_.context(), "Firma"));
    LblAnzMaterialMW_->setText(toQt(structure_.material().count));
    LblAnzFirmaMW_->setText(toQt(structure_.company().count));
}

} // namespace quelvarn
