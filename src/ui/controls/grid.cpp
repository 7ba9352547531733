#include "ui/controls/grid.h"

#include "database/recordset.h"
#include "ui/controls/column_widths.h"
#include "ui/controls/grid_head.h"
#include "ui/text.h"
#include "ui/theme/style.h"
#include "ui/value_text.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QStyledItemDelegate>
#include <QTextLayout>
#include <QToolTip>

namespace quelvarn {

namespace {

// Draws a cell as the style would, but lays its text out once only: moving through rows is mostly drawing cells.
// Marks the row that the keyboard moves, and shows the whole text in the tool tip where it had to be shortened.
class CellPainter : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& language) const override
    {
        return oneLine(QStyledItemDelegate::displayText(value, language));
    }

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& position) override
    {
        if (event->type() != QEvent::ToolTip)
            return QStyledItemDelegate::helpEvent(event, view, option, position);
        const bool shortened = sizeHint(option, position).width() > view->visualRect(position).width();
        QToolTip::showText(event->globalPos(), shortened ? asTip(position.data().toString()) : QString(), view);
        return true;
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& position) const override
    {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, position);
        const QStyle& style = *cell.widget->style();
        style.drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
        drawText(*painter, cell, style);
        if (position.column() == 0 && option.state.testFlag(QStyle::State_Selected) && option.widget->hasFocus())
            drawFocusMark(*painter, option.rect);
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& position) const override
    {
        QStyledItemDelegate::initStyleOption(option, position);
        option->state.setFlag(QStyle::State_HasFocus, false); // The whole row is marked instead.
    }

private:
    static void drawText(QPainter& painter, const QStyleOptionViewItem& cell, const QStyle& style)
    {
        const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
        const QRect place = cell.rect.adjusted(margin, 0, -margin, 0);
        const bool chosen = cell.state.testFlag(QStyle::State_Selected);
        const auto group = cell.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
        painter.setPen(cell.palette.color(cell.state.testFlag(QStyle::State_Enabled) ? group : QPalette::Disabled,
                                          chosen ? QPalette::HighlightedText : QPalette::Text));
        QTextLayout line(cell.text, cell.font);
        const QSizeF size = set(line);
        if (size.width() > place.width()) {
            line.setText(cell.fontMetrics.elidedText(cell.text, cell.textElideMode, place.width()));
            set(line);
        }
        line.draw(&painter, QPointF(place.left(), place.top() + (place.height() - size.height()) / 2));
    }

    // One line, as long as it needs.
    static QSizeF set(QTextLayout& line)
    {
        line.setCacheEnabled(true);
        line.beginLayout();
        QTextLine row = line.createLine();
        line.endLayout();
        return {row.naturalTextWidth(), row.height()};
    }
};

} // namespace

Grid::Grid(std::string_view name, std::vector<GridColumn> columns, std::vector<int> shares)
    : model_(new GridModel(std::move(columns))), shares_(std::move(shares))
{
    setObjectName(toQt(name));
    model_->setParent(this);
    setModel(model_);
    configureGrid(*this);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column) {
        const bool last = column == model_->columnCount() - 1; // It follows the others.
        byHand_ = byHand_ || (!distributed_ && !last && isVisible());
    });
}

void configureGrid(QTableView& grid)
{
    grid.setItemDelegate(new CellPainter(&grid));
    grid.setHorizontalHeader(new GridHead(&grid));
    grid.setSelectionBehavior(QTableView::SelectRows);
    grid.setSelectionMode(QTableView::SingleSelection);
    grid.setEditTriggers(QTableView::NoEditTriggers);
    grid.setAlternatingRowColors(true);
    grid.setShowGrid(false);
    grid.setWordWrap(false);
    grid.setTabKeyNavigation(false);
    grid.setCornerButtonEnabled(false);
    grid.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grid.verticalHeader()->hide();
    grid.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grid.verticalHeader()->setDefaultSectionSize(grid.fontMetrics().height() + 5);
}

void Grid::display(const Recordset* rows, unsigned generation)
{
    still([&] { model_->display(rows, generation); });
    if (rows == nullptr || rows->bof() || rows->eof())
        return;
    const int row = static_cast<int>(rows->absolutePosition());
    if (row != currentIndex().row())
        showChosen(model_->index(row, 0));
}

void Grid::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    if (!byHand_ && event->size().width() != event->oldSize().width())
        distributeWidths();
}

void Grid::distributeWidths()
{
    distributed_ = true;
    const auto& heading = static_cast<const GridHead&>(*horizontalHeader());
    std::vector<int> least;
    for (int i = 0; i < model_->columnCount(); ++i)
        least.push_back(heading.leastWidth(i));
    const std::vector<int> widths = columnWidths(viewport()->width(), shares_, least);
    // The head stretches the last one too, but not as long as the columns before were too wide.
    for (std::size_t i = 0; i < widths.size(); ++i)
        setColumnWidth(static_cast<int>(i), widths[i]);
    distributed_ = false;
}

} // namespace quelvarn
