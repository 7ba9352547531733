#include "ui/document_page/left_bar_view.h"

#include "register/left_bar.h"
#include "register/table_heading.h"
#include "register/table_tabs.h"
#include "ui/busy_pointer.h"
#include "ui/controls/filter_value_grid.h"
#include "ui/controls/strip.h"
#include "ui/document_page/panels/date_panel.h"
#include "ui/document_page/panels/panel_parts.h"
#include "ui/document_page/panels/search_panel.h"
#include "ui/document_page/tool_bars.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "ui/theme/icons.h"
#include "ui/value_text.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>

namespace quelvarn {

namespace {

constexpr int HEIGHT_VALUES = 120;

} // namespace

LeftBarView::LeftBarView(LeftBar& model, TableTabs& tabs, const TableHeading& heading)
    : model_(model), tabs_(tabs), heading_(heading), ToolbarSEDok2_(newToolbarSEDok2()),
      FrmSuchenFiltern_(new SearchPanel(model)), FrmFilternDatum_(new DatePanel(model)), favourites_(new QMenu(this)),
      LblFilter_(new QToolButton), savedFilterPanel_(newSavedFilterPanel()),
      DataGridFilterEigenMerk_(new ValueTable("DataGridFilterEigenMerk")), FrmInfoFilter_(newFrmInfoFilter()),
      above_(newAbove())
{
    setObjectName(QStringLiteral("RandSEDoku"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(3, 4, 3, 4);
    layout->addWidget(ToolbarSEDok2_);
    layout->addStretch(1);
    connectButtons();
    buildShortcuts();
}

QWidget* LeftBarView::newAbove()
{
    auto* above = new QWidget;
    auto* layout = new QVBoxLayout(above);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    for (QWidget* panel : std::initializer_list<QWidget*>{FrmSuchenFiltern_, FrmFilternDatum_, savedFilterPanel_})
        layout->addWidget(panel);
    return above;
}

QWidget* LeftBarView::newSavedFilterPanel()
{
    auto* panel = newFramedPanel("FrmFilterFavo");
    favourites_->setObjectName(QStringLiteral("MenuFilternFavo"));
    connect(favourites_, &QMenu::aboutToShow, this, guardedSlot([this] { fillFavourites(); }));
    LblFilter_->setObjectName(QStringLiteral("LblFilter"));
    LblFilter_->setAccessibleName(QStringLiteral("Filterfavorit anwenden"));
    LblFilter_->setToolTip(QStringLiteral("Diesen Filter auf die Tabelle anwenden"));
    LblFilter_->setPopupMode(QToolButton::MenuButtonPopup);
    LblFilter_->setMenu(favourites_);
    LblFilter_->setMinimumWidth(180);
    LblFilter_->setProperty("framed", true);
    connect(LblFilter_, &QToolButton::clicked, this, guardedSlot([this] {
                const BusyCursor wait;
                model_.useFavourite();
            }));
    auto* layoutRow = new QHBoxLayout(panel);
    layoutRow->setContentsMargins(8, 6, 8, 6);
    layoutRow->addWidget(caption(QStringLiteral("Filterfavorit"), TextRole::Caption));
    layoutRow->addWidget(LblFilter_);
    layoutRow->addStretch(1);
    return panel;
}

QWidget* LeftBarView::newFrmInfoFilter()
{
    auto* panel = newFramedPanel("FrmInfoFilter");
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins({});
    layout->addWidget(DataGridFilterEigenMerk_);
    panel->setFixedHeight(HEIGHT_VALUES);
    return panel;
}

void LeftBarView::atButton(std::string_view key, const std::function<void(bool pressed)>& act)
{
    connect(&buttonOf(*ToolbarSEDok2_, key), &QAction::triggered, this,
            guardedSlot([act](bool pressed) { act(pressed); }));
}

void LeftBarView::connectButtons()
{
    atButton("Suche/Filtern", [this](bool pressed) {
        model_.showSearch(pressed);
        if (pressed)
            FrmSuchenFiltern_->takeFocus();
    });
    atButton("Filtern Datum", [this](bool pressed) { model_.showDate(pressed); });
    atButton("Filtern Favo.", [this](bool pressed) { openFavourites(pressed); });
    atButton("Filterwerte", [this](bool pressed) { model_.showValues(pressed); });
    atButton("Zurück", [this](bool) {
        const BusyCursor wait;
        tabs_.back();
    });
}

void LeftBarView::buildShortcuts()
{
    auto* search = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_F), this);
    connect(search, &QShortcut::activated, this, guardedSlot([this] {
                model_.showSearch(true);
                FrmSuchenFiltern_->takeFocus();
            }));
    auto* further = new QShortcut(QKeySequence(Qt::Key_F3), this);
    connect(further, &QShortcut::activated, this, guardedSlot([this] {
                model_.showSearch(true);
                FrmSuchenFiltern_->searchOn();
            }));
}

void LeftBarView::openFavourites(bool pressed)
{
    if (!pressed)
        return model_.closeFavourites();
    if (!model_.showFavourites())
        return;
    QWidget* button = ToolbarSEDok2_->widgetForAction(&buttonOf(*ToolbarSEDok2_, "Filtern Favo."));
    favourites_->popup(button->mapToGlobal(button->rect().topRight()));
}

void LeftBarView::fillFavourites()
{
    favourites_->clear();
    for (const std::string& name : model_.favouriteNames()) {
        QAction* entry = favourites_->addAction(asCaption(toQt(name)));
        connect(entry, &QAction::triggered, this, guardedSlot([this, name] {
                    favourites_->close();
                    model_.chooseFavourite(name);
                }));
    }
}

void LeftBarView::refresh()
{
    FrmSuchenFiltern_->setVisible(model_.showsSearch());
    FrmFilternDatum_->setVisible(model_.showsDate());
    savedFilterPanel_->setVisible(model_.showsFavourite());
    FrmInfoFilter_->setVisible(model_.showsValues());
    if (model_.showsSearch())
        FrmSuchenFiltern_->refresh();
    if (model_.showsDate())
        FrmFilternDatum_->refresh();
    LblFilter_->setText(asCaption(toQt(model_.LblFilter())));
    DataGridFilterEigenMerk_->rows().display(model_.shownValues());
    showButtons();
    showBack();
}

void LeftBarView::showButtons()
{
    buttonOf(*ToolbarSEDok2_, "Suche/Filtern").setChecked(model_.showsSearch());
    buttonOf(*ToolbarSEDok2_, "Filtern Datum").setChecked(model_.showsDate());
    buttonOf(*ToolbarSEDok2_, "Filtern Favo.").setChecked(model_.showsFavourite());
    QAction& values = buttonOf(*ToolbarSEDok2_, "Filterwerte");
    values.setChecked(model_.showsValues());
    const QString text = toQt(model_.valuesButton());
    if (values.toolTip() == text)
        return;
    values.setText(text);
    values.setToolTip(text);
}

void LeftBarView::showBack()
{
    if (filterButton_ == heading_.showsFilterButton()) // A new icon makes the whole page lay itself out again.
        return;
    filterButton_ = heading_.showsFilterButton();
    QAction& button = buttonOf(*ToolbarSEDok2_, "Zurück");
    button.setToolTip(toQt(heading_.backTip()));
    button.setIcon(icon(heading_.showsFilterButton() ? "filter-lift" : "first"));
}

} // namespace quelvarn
