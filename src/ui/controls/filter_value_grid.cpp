#include "ui/controls/filter_value_grid.h"

#include "ui/controls/grid.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QResizeEvent>

#include <utility>

namespace quelvarn {

namespace {

enum ValueColumn : int { Benennung = 0, value = 1, Count = 2 };
constexpr int CAPTION_SHARE = 40; // Percent of the width.

} // namespace

void FilterValueModel::display(const std::vector<FilterRow>& values)
{
    if (values == values_)
        return;
    if (values.size() == values_.size()) { // The editor of a cell stays: the view closes it when it has written.
        values_ = values;
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, Count - 1));
        return;
    }
    beginResetModel();
    values_ = values;
    endResetModel();
}

void FilterValueModel::setHeading(std::string_view text)
{
    if (text == heading_)
        return;
    heading_ = text;
    Q_EMIT headerDataChanged(Qt::Horizontal, value, value);
}

int FilterValueModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(values_.size());
}

int FilterValueModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Count;
}

QVariant FilterValueModel::data(const QModelIndex& position, int textRole) const
{
    if ((textRole != Qt::DisplayRole && textRole != Qt::EditRole) ||
        !checkIndex(position, CheckIndexOption::IndexIsValid))
        return {};
    const FilterRow& row = values_[static_cast<std::size_t>(position.row())];
    return toQt(position.column() == Benennung ? row.Benennung : row.value);
}

QVariant FilterValueModel::headerData(int section, Qt::Orientation direction, int textRole) const
{
    if (direction == Qt::Vertical)
        return textRole == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    if (section < 0 || section >= Count)
        return {};
    if (textRole == Qt::DisplayRole)
        return section == Benennung ? QStringLiteral("Benennung") : toQt(heading_);
    if (textRole == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags FilterValueModel::flags(const QModelIndex& position) const
{
    const Qt::ItemFlags features = QAbstractTableModel::flags(position);
    return edited && position.column() == value ? features | Qt::ItemIsEditable : features;
}

// The editor is closed by the time it is told: that may raise a box.
FilterValueModel::FilterValueModel(QObject* parent) : QAbstractTableModel(parent)
{
    connect(this, &FilterValueModel::entered, this, &FilterValueModel::tellEntered, Qt::QueuedConnection);
}

bool FilterValueModel::setData(const QModelIndex& position, const QVariant& value, int textRole)
{
    if (textRole != Qt::EditRole || !edited || value == data(position, textRole))
        return false;
    entered_ = Entered{static_cast<std::size_t>(position.row()), fromQt(value.toString())};
    values_[entered_->row].value = entered_->value;
    Q_EMIT dataChanged(position, position);
    Q_EMIT entered();
    return true;
}

void FilterValueModel::tellEntered()
{
    if (const auto entered = std::exchange(entered_, std::nullopt))
        SlotGuard::current().execute([&] { edited(entered->row, entered->value); });
}

ValueTable::ValueTable(const char* name) : model_(new FilterValueModel(this))
{
    setObjectName(QLatin1String(name));
    setAccessibleName(QStringLiteral("Filterwerte"));
    setModel(model_);
    configureGrid(*this);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
}

void ValueTable::takeInput()
{
    if (QWidget* editor = indexWidget(currentIndex())) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
    model_->tellEntered();
}

void ValueTable::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        setColumnWidth(Benennung, viewport()->width() * CAPTION_SHARE / 100);
}

} // namespace quelvarn
