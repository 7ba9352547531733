#include "ui/document_page/document_view.h"

#include "program/program.h"
#include "ui/adapters/viewer_qt.h"
#include "ui/busy_pointer.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/grid.h"
#include "ui/controls/strip.h"
#include "ui/controls/tab_bar.h"
#include "ui/document_page/document_status_bar.h"
#include "ui/document_page/info_area.h"
#include "ui/document_page/left_bar_view.h"
#include "ui/document_page/panels/favourites_panel.h"
#include "ui/document_page/panels/list_panels.h"
#include "ui/document_page/panels/order_panel.h"
#include "ui/document_page/table_view.h"
#include "ui/document_page/tool_bars.h"
#include "ui/document_page/top_bar_view.h"
#include "ui/text.h"
#include "ui/value_text.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QShortcut>
#include <QSplitter>
#include <QTabBar>
#include <QToolBar>

namespace quelvarn {

namespace {

constexpr int FIRST_SPECIAL_TABLE = 5;

} // namespace

FormSEDoku::FormSEDoku(Program& program, QtViewer& viewer)
    : program_(program), viewer_(viewer), LabelSEDoku_(new ShortLabel), LblZugriffSEDoku_(new ShortLabel),
      above_(new TopBarView(program.topBar, program.favourites, this)),
      left_(new LeftBarView(program.leftBar, program.tabs, program.heading)),
      info_(new InfoArea(program.info, program.relationActions, viewer)), status_(new StatusBarDatei)
{
    setObjectName(QStringLiteral("FormSEDoku"));
    SSTabDGDoku_ = newTabs();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(newHeadingRow());
    layout->addWidget(newBar());
    layout->addWidget(newMiddle(), 1);
    layout->addWidget(status_);
    buildShortcuts();
}

QWidget* FormSEDoku::newHeadingRow()
{
    auto* row = new Strip(Strip::Kind::HeadingRow, "KopfSEDoku");
    LabelSEDoku_->setObjectName(QStringLiteral("LabelSEDoku"));
    setRole(*LabelSEDoku_, TextRole::Titel);
    LblZugriffSEDoku_->setObjectName(QStringLiteral("LblZugriffSEDoku"));
    LblZugriffSEDoku_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setRole(*LblZugriffSEDoku_, TextRole::Small);
    row->layoutRow().setContentsMargins(4, 0, 10, 0);
    row->layoutRow().addWidget(LabelSEDoku_);
    row->layoutRow().addWidget(LblZugriffSEDoku_, 1);
    return row;
}

QWidget* FormSEDoku::newBar()
{
    auto* row = new Strip(Strip::Kind::Bar, "LeisteSEDoku");
    auto* ToolbarSEDok3 = newToolbarSEDok3();
    ToolbarSEDok3->hide();
    row->layoutRow().addWidget(above_->ToolbarSEDokTop(), 1);
    row->layoutRow().addWidget(ToolbarSEDok3);
    row->layoutRow().addWidget(newToolbarSEDok4());
    return row;
}

QWidget* FormSEDoku::newMiddle()
{
    auto* splitter = new QSplitter;
    splitter->setObjectName(QStringLiteral("FrmDokuSmartView_Doku"));
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(newTablePage());
    splitter->addWidget(info_);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    splitter->setSizes({604, 335});

    FrmDokuSmartView_Doku_ = splitter;
    FrmDokuSmartView_SmartView_ = new QWidget;
    FrmDokuSmartView_SmartView_->setObjectName(QStringLiteral("FrmDokuSmartView_SmartView"));
    auto* viewerPlace = new QVBoxLayout(FrmDokuSmartView_SmartView_);
    viewerPlace->addWidget(&viewer_.place(ViewerPlace::Document));
    FrmDokuSmartView_SmartView_->setFocusPolicy(Qt::ClickFocus);
    FrmDokuSmartView_SmartView_->hide();
    auto* middle = new QWidget;
    auto* layoutRow = new QHBoxLayout(middle);
    layoutRow->setContentsMargins({});
    layoutRow->setSpacing(0);
    layoutRow->addWidget(splitter);
    layoutRow->addWidget(FrmDokuSmartView_SmartView_);
    layoutRow->addWidget(newOrderList());
    return middle;
}

QWidget* FormSEDoku::newTablePage()
{
    auto* tables = new QVBoxLayout;
    tables->setSpacing(0);
    tables->addWidget(left_->overTables());
    tables->addWidget(newFrmDelete());
    tables->addWidget(SSTabDGDoku_, 1);
    tables->addWidget(left_->belowTables());
    for (QWidget* panel :
         std::initializer_list<QWidget*>{above_->FrmFavoriten(), newFrmNutzer(), newFrmForwardMessage()})
        tables->addWidget(panel, 1);

    auto* page = new QWidget;
    auto* layout = new QHBoxLayout(page);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(left_);
    layout->addLayout(tables, 1);
    return page;
}

QTabWidget* FormSEDoku::newTabs()
{
    auto* tabs = new TabWidget(FIRST_SPECIAL_TABLE);
    tabs->setObjectName(QStringLiteral("SSTabDGDoku"));
    tabs->setDocumentMode(true);
    tabs->tabBar()->setElideMode(Qt::ElideMiddle);
    tabs->tabBar()->setUsesScrollButtons(false);
    tabs->tabBar()->setExpanding(false);
    for (int tab = 0; tab < DOCUMENT_TYPE_COUNT; ++tab) {
        auto* table = new TableView(program_, tab);
        table->opened = [this] { program_.frame.edit(); };
        tables_.push_back(table);
        tabs->addTab(table, {});
    }
    connect(tabs, &QTabWidget::currentChanged, this, guardedSlot([this](int tab) {
                const BusyCursor wait;
                program_.tabs.chooseTab(tab);
                if (!SSTabDGDoku_->tabBar()->hasFocus()) // There the arrow keys go on from tab to tab.
                    setFocus();
            }));
    connect(tabs, &QTabWidget::tabBarClicked, this, guardedSlot([this](int tab) {
                if (tab == program_.tables.tab()) // Nothing changes, and the keyboard is wanted here all the same.
                    setFocus();
            }));
    return tabs;
}

void FormSEDoku::buildShortcuts()
{
    for (int tab = 0; tab < DOCUMENT_TYPE_COUNT; ++tab) {
        auto* key = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + tab)), this);
        connect(key, &QShortcut::activated, this, guardedSlot([this, tab] {
                    const BusyCursor wait;
                    program_.tabs.chooseTab(tab);
                    setFocus();
                }));
    }
    // Back from wherever the focus went, and from what the upper bar has brought up.
    auto* back = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    const auto toTable = [this] {
        above_->close();
        tables_[static_cast<std::size_t>(program_.tables.tab())]->grid().setFocus();
    };
    connect(back, &QShortcut::activated, this, guardedSlot(toTable));
    info_->toTable = toTable;
}

void FormSEDoku::refresh()
{
    LabelSEDoku_->setText(toQt(program_.heading.countText()));
    LblZugriffSEDoku_->setText(toQt(program_.heading.accessText()));
    showNote(*LblZugriffSEDoku_, program_.heading.isStatusLimited());
    showTab();
    showLeft();
    showAbove();
    refreshRows();
    info_->refresh();
    showViewerPage();
    status_->refresh(program_.panels);
}

void FormSEDoku::showTab()
{
    const QSignalBlocker still(SSTabDGDoku_);
    for (int tab = 0; tab < DOCUMENT_TYPE_COUNT; ++tab) {
        const QString name = toQt(program_.session.labels.plural(tab));
        const QString text = asCaption(name);
        if (SSTabDGDoku_->tabText(tab) == text)
            continue;
        SSTabDGDoku_->setTabText(tab, text);
        SSTabDGDoku_->setTabToolTip(tab, asTip(name));
    }
    SSTabDGDoku_->setCurrentIndex(program_.tables.tab());
    setFocusProxy(&mainControl());
}

QWidget& FormSEDoku::mainControl() const
{
    if (program_.viewer.isInFront())
        return *FrmDokuSmartView_SmartView_;
    return tables_[static_cast<std::size_t>(program_.tables.tab())]->grid();
}

void FormSEDoku::showViewerPage()
{
    QWidget& behind = program_.viewer.isInFront() ? *FrmDokuSmartView_Doku_ : *FrmDokuSmartView_SmartView_;
    QWidget& front = program_.viewer.isInFront() ? *FrmDokuSmartView_SmartView_ : *FrmDokuSmartView_Doku_;
    if (!front.isHidden())
        return;
    const bool hadFocus = behind.isAncestorOf(QApplication::focusWidget());
    front.show();
    if (hadFocus) // Else it would go to the next control of the window, and keys with it.
        setFocus();
    behind.hide();
}

void FormSEDoku::refreshRows()
{
    for (auto* table : tables_)
        table->refresh();
}

void FormSEDoku::showLeft()
{
    left_->refresh();
}

void FormSEDoku::showAbove()
{
    above_->refresh();
}

} // namespace quelvarn
