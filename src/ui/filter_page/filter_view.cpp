#include "ui/filter_page/filter_view.h"

#include "base/windows_path.h"
#include "filter/filter_page.h"
#include "ui/busy_pointer.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/progress_field.h"
#include "ui/controls/strip.h"
#include "ui/controls/tab_bar.h"
#include "ui/controls/tool_bar.h"
#include "ui/filter_page/property_tab.h"
#include "ui/filter_page/running_filter.h"
#include "ui/filter_page/saved_filter_frame.h"
#include "ui/filter_page/structure_tab.h"
#include "ui/filter_page/user_defined_tab.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QAbstractButton>
#include <QAction>
#include <QHBoxLayout>
#include <QShortcut>
#include <QStackedWidget>
#include <QToolBar>

namespace quelvarn {

namespace {

constexpr std::array<const char*, 3> TAB{"Eigenschaften und Datum", "Hauptmerkmale und Hauptwerte",
                                         "Benutzerdefinierte Eigenschaften"};
constexpr int HEIGHT_FILTER = 160; // Head, five steps and the statuses.
constexpr int WIDTH_SAVED = 262;

QWidget* newTemplateFrame(QWidget& drawingTemplate)
{
    auto* frame = new QWidget;
    frame->setObjectName(QStringLiteral("FrmVorlageSmartViewDraft"));
    drawingTemplate.setObjectName(QStringLiteral("SEDraftVorlage"));
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(&drawingTemplate);
    return frame;
}

} // namespace

FormSEFiltern::FormSEFiltern(FilterPage& model, QWidget& drawingTemplate)
    : model_(model), pageHeading_(new ShortLabel), LblZugriffSEFiltern_(new ShortLabel),
      ToolbarSEFilter_(quelvarn::newBar("ToolbarSEFilter", ButtonKind::TextBesideIcon)),
      FrmGesamtFilter_(new QStackedWidget), SSTabDGFilter_(new TabWidget(static_cast<int>(TAB.size()))),
      properties_(new PropertyTab(model)), structure_(new StructureTab(model)), userDefined_(new UserDefinedTab(model)),
      filter_(new RunningFilter(model)), saved_(new SavedFilterFrame(model)),
      drawingTemplate_(newTemplateFrame(drawingTemplate)), fileName_(new ShortLabel),
      pathName_(new ShortLabel(nullptr, Qt::ElideMiddle)),
      progress_(new ProgressField("PrgBarBenutzDef", "LblProgBar", "CmAbbrechenBenutzDef"))
{
    setObjectName(QStringLiteral("FormSEFiltern"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(newHeadingRow());
    layout->addWidget(newBar());
    layout->addWidget(newContent(), 1);
    layout->addWidget(newStatusRow());
    buildShortcuts();
    setFocusProxy(SSTabDGFilter_);
}

QWidget* FormSEFiltern::newHeadingRow()
{
    auto* row = new Strip(Strip::Kind::HeadingRow, "KopfSEFiltern");
    pageHeading_->setObjectName(QStringLiteral("LblKopfSEFiltern"));
    setRole(*pageHeading_, TextRole::Titel);
    LblZugriffSEFiltern_->setObjectName(QStringLiteral("LblZugriffSEFiltern"));
    LblZugriffSEFiltern_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setRole(*LblZugriffSEFiltern_, TextRole::Small);
    row->layoutRow().setContentsMargins(4, 0, 10, 0);
    row->layoutRow().addWidget(pageHeading_);
    row->layoutRow().addWidget(LblZugriffSEFiltern_, 1);
    return row;
}

QWidget* FormSEFiltern::newBar()
{
    auto* row = new Strip(Strip::Kind::Bar, "LeisteSEFilter");
    QToolBar& bar = *ToolbarSEFilter_;
    const auto add = [this, &bar](const BarButton& button) {
        auto* action = addBarButton(bar, button);
        action->setShortcutContext(Qt::WindowShortcut);
        return action;
    };
    auto* filter = add({"Filtern", "Filtern", "Filtern der Tabelle (Strg+Eingabe)", ""});
    bar.widgetForAction(filter)->setProperty("primary", true);
    filter->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::CTRL | Qt::Key_Enter), QKeySequence(Qt::Key_F5)});
    auto* back = add({"Zurück", "Zurück", "Filterwerte zurücksetzen", "filter-lift"});
    auto* values = add({"Werte", "Werte", "Grenzen der Hauptwerte a bis g zurücksetzen", "values"});
    auto* drawingTemplate = add({"Vorlage", "Vorlage", "Zeichnungsvorlage des Strukturmerkmals anzeigen", "eye", true});
    addStretcher(bar);
    auto* leave = add({"Verlassen", "Verlassen", "Zurück zu den Dokumenten; die Tabelle bleibt gefiltert", "back"});
    connect(filter, &QAction::triggered, this, guardedSlot([this] { this->filter(); }));
    connect(back, &QAction::triggered, this, guardedSlot([this] {
                const BusyCursor wait;
                model_.back();
            }));
    connect(values, &QAction::triggered, this, guardedSlot([this] { model_.values(); }));
    connect(drawingTemplate, &QAction::triggered, this,
            guardedSlot([this](bool pressed) { model_.drawingTemplate(pressed); }));
    connect(leave, &QAction::triggered, this, guardedSlot([this] {
                filter_->takeInput();
                model_.leave();
            }));
    row->layoutRow().addWidget(ToolbarSEFilter_);
    return row;
}

QWidget* FormSEFiltern::newContent()
{
    buildTabs();
    auto* FrmFilterSmart = new QWidget;
    FrmFilterSmart->setObjectName(QStringLiteral("FrmFilterSmart"));
    filter_->filter = [this] { SlotGuard::current().execute([this] { filter(); }); };
    saved_->beforeSaving = [this] { filter_->takeInput(); };
    filter_->setFixedHeight(HEIGHT_FILTER);
    saved_->setFixedWidth(WIDTH_SAVED);
    auto* below = new QHBoxLayout;
    below->setContentsMargins(12, 4, 12, 8);
    below->setSpacing(12);
    below->addWidget(filter_, 1);
    below->addWidget(saved_);
    auto* layout = new QVBoxLayout(FrmFilterSmart);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(SSTabDGFilter_, 1);
    layout->addLayout(below);

    FrmGesamtFilter_->setObjectName(QStringLiteral("FrmGesamtFilter"));
    FrmGesamtFilter_->addWidget(FrmFilterSmart);
    FrmGesamtFilter_->addWidget(drawingTemplate_);
    return FrmGesamtFilter_;
}

void FormSEFiltern::buildTabs()
{
    SSTabDGFilter_->setObjectName(QStringLiteral("SSTabDGFilter"));
    SSTabDGFilter_->setDocumentMode(true);
    SSTabDGFilter_->tabBar()->setExpanding(false);
    const std::array<QWidget*, 3> pages{properties_, structure_, userDefined_};
    for (std::size_t i = 0; i < TAB.size(); ++i)
        SSTabDGFilter_->addTab(pages[i], QString::fromUtf8(TAB[i]));
    connect(SSTabDGFilter_, &QTabWidget::currentChanged, this, guardedSlot([this](int tab) {
                const BusyCursor wait;
                model_.sectionChosen(static_cast<FilterSection>(tab));
            }));
    properties_->dateAdopted = [this] { SSTabDGFilter_->tabBar()->setFocus(); };
}

QWidget* FormSEFiltern::newStatusRow()
{
    auto* row = new Strip(Strip::Kind::StatusRow, "StatusBarDatei");
    fileName_->setObjectName(QStringLiteral("StatusBarDatei(2)"));
    pathName_->setObjectName(QStringLiteral("StatusBarDatei(4)"));
    QHBoxLayout& layoutRow = row->layoutRow();
    layoutRow.addWidget(caption(QStringLiteral("Dateiname"), TextRole::Small, QStringLiteral("StatusBarDatei(1)")));
    layoutRow.addWidget(fileName_);
    layoutRow.addSpacing(8);
    layoutRow.addWidget(caption(QStringLiteral("Pfadname"), TextRole::Small, QStringLiteral("StatusBarDatei(3)")));
    layoutRow.addWidget(pathName_, 1);
    progress_->cancel().setProperty("flat", true);
    layoutRow.addWidget(progress_);
    return row;
}

void FormSEFiltern::buildShortcuts()
{
    auto* leave = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    leave->setContext(Qt::WidgetWithChildrenShortcut);
    connect(leave, &QShortcut::activated, this, guardedSlot([this] { model_.leave(); }));
    for (int tab = 0; tab < SSTabDGFilter_->count(); ++tab) {
        auto* key = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + tab)), this);
        key->setContext(Qt::WidgetWithChildrenShortcut);
        connect(key, &QShortcut::activated, this, guardedSlot([this, tab] {
                    if (SSTabDGFilter_->isTabVisible(tab))
                        SSTabDGFilter_->setCurrentIndex(tab);
                }));
    }
}

void FormSEFiltern::filter()
{
    filter_->takeInput();
    const BusyCursor wait;
    model_.filter();
}

void FormSEFiltern::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    properties_->showToday();
}

// --- projection ------------------------------------------------------------------------------------------------

void FormSEFiltern::refresh()
{
    pageHeading_->setText(toQt(model_.title()));
    LblZugriffSEFiltern_->setText(toQt(model_.accessDateText()));
    showBar();
    showTab();
    filter_->refresh();
    saved_->refresh();
    const bool drawingTemplate = model_.showsTemplate();
    FrmGesamtFilter_->setCurrentIndex(drawingTemplate ? 1 : 0);
    fileName_->setText(drawingTemplate ? toQt(DateiName(model_.structure().drawingTemplate())) : QString());
    pathName_->setText(drawingTemplate ? toQt(Ordnername(model_.structure().drawingTemplate())) : QString());
}

void FormSEFiltern::showBar()
{
    const bool drawingTemplate = model_.showsTemplate();
    for (const char* button : {"Filtern", "Zurück"})
        buttonOf(*ToolbarSEFilter_, button).setEnabled(!drawingTemplate);
    buttonOf(*ToolbarSEFilter_, "Werte")
        .setEnabled(!drawingTemplate && model_.context().section() == FilterSection::Structure);
    buttonOf(*ToolbarSEFilter_, "Vorlage").setChecked(drawingTemplate);
}

void FormSEFiltern::showTab()
{
    const FilterSection section = model_.context().section();
    const QSignalBlocker still(SSTabDGFilter_);
    constexpr int USER_DEFINED = static_cast<int>(FilterSection::UserDefined);
    SSTabDGFilter_->setTabVisible(USER_DEFINED, model_.sectionExists(FilterSection::UserDefined));
    SSTabDGFilter_->setCurrentIndex(static_cast<int>(section));
    progress_->setLent(section == FilterSection::UserDefined);
    switch (section) {
    case FilterSection::Properties:
        return properties_->refresh();
    case FilterSection::Structure:
        return structure_->refresh();
    case FilterSection::UserDefined:
        return userDefined_->refresh();
    }
}

} // namespace quelvarn
