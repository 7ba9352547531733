#include "ui/filter_page/main_value_model.h"

#include "base/number_format.h"
#include "ui/text.h"

namespace quelvarn {

namespace {

constexpr std::array<const char*, 3> COLUMNS{"HW", "MinWert", "MaxWert"};

} // namespace

void MainValueModel::display(const Bounds& bounds)
{
    if (bounds == bounds_)
        return;
    bounds_ = bounds;
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int MainValueModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : MAIN_VALUE_COUNT;
}

int MainValueModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(COLUMNS.size());
}

QVariant MainValueModel::data(const QModelIndex& position, int textRole) const
{
    if (textRole == Qt::TextAlignmentRole && position.column() > 0)
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    if (textRole != Qt::DisplayRole || !checkIndex(position, CheckIndexOption::IndexIsValid))
        return {};
    if (position.column() == 0)
        return QStringLiteral("  ") + QChar(u'a' + position.row());
    const MainValueBand& bounds = bounds_[static_cast<std::size_t>(position.row())];
    if (!bounds.set())
        return {};
    return toQt((position.column() == 1 ? bounds.MinWert : bounds.MaxWert).text());
}

QVariant MainValueModel::headerData(int section, Qt::Orientation direction, int textRole) const
{
    if (direction != Qt::Horizontal || textRole != Qt::DisplayRole)
        return {};
    return QLatin1String(COLUMNS[static_cast<std::size_t>(section)]);
}

} // namespace quelvarn
