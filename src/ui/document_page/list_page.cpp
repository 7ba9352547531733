#include "ui/document_page/list_page.h"

#include "register/info_panel.h"
#include "ui/controls/grid.h"
#include "ui/controls/strip.h"
#include "ui/controls/wrapping_label.h"
#include "ui/text.h"

#include <QHBoxLayout>
#include <QLabel>

namespace quelvarn {

namespace {

constexpr qsizetype WHOLE_CELL_LETTERS = 600; // The grid above needs room, too.

} // namespace

ListPage::ListPage(InfoPanel& model, InfoPageId page, const QString& title, std::string_view grid,
                   std::vector<GridColumn> columns, std::vector<int> shares)
    : model_(model), page_(page), grid_(new Grid(grid, std::move(columns), std::move(shares))),
      layout_(new QVBoxLayout(this))
{
    layout_->setContentsMargins({});
    layout_->setSpacing(0);
    auto* heading = caption(title, TextRole::Heading);
    heading->setContentsMargins(12, 8, 12, 4);
    layout_->addWidget(heading);
    layout_->addWidget(grid_, 1);
    grid_->setAccessibleName(title);
    grid_->chosen = [this](const QModelIndex& position) {
        model_.details().rowChosen(page_, static_cast<std::size_t>(position.row()));
    };
}

QHBoxLayout& ListPage::newStripRow()
{
    auto* layoutRow = new QHBoxLayout;
    layoutRow->setContentsMargins(12, 8, 12, 8);
    layoutRow->setSpacing(12);
    layout_->addLayout(layoutRow);
    return *layoutRow;
}

void ListPage::showWhole(std::string_view field)
{
    auto* whole = new WrappingLabel(WHOLE_CELL_LETTERS);
    auto* layoutRow = new QHBoxLayout;
    layoutRow->setContentsMargins(10, 6, 12, 4);
    layoutRow->addWidget(whole);
    layout_->addLayout(layoutRow);
    sequence([this, whole, field] {
        const Recordset* list = model_.details().list(page_);
        const bool row = list != nullptr && !list->bof() && !list->eof();
        whole->setText(row ? toQt(list->Text(field)) : QString());
        whole->setVisible(!whole->text().isEmpty());
    });
}

void ListPage::setOpen(std::function<void()> open)
{
    grid_->opened = [open = std::move(open)](const QModelIndex& /*position*/) { open(); };
}

void ListPage::refresh()
{
    const DetailPages& details = model_.details();
    grid_->display(details.list(page_), details.generation());
    for (const auto& step : steps_)
        step();
}

} // namespace quelvarn
