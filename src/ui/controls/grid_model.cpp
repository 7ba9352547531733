#include "ui/controls/grid_model.h"

#include "base/runtime_error.h"
#include "database/recordset.h"
#include "ui/adapters/patience_qt.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QTimer>

#include <algorithm>
#include <limits>
#include <utility>

namespace quelvarn {

GridModel::GridModel(std::vector<GridColumn> columns) : columns_(std::move(columns)), reporter_(new QTimer(this))
{
    reporter_->setSingleShot(true);
    connect(reporter_, &QTimer::timeout, this, guardedSlot([this] {
                if (fault_)
                    throw RuntimeError(*fault_);
            }));
}

bool GridModel::display(const Recordset* rows, unsigned generation)
{
    if (rows == rows_ && generation == generation_) {
        tryAgain();
        return false;
    }
    beginResetModel();
    rows_ = rows;
    generation_ = generation;
    const std::size_t count = rows != nullptr ? rows->RecordCount() : 0;
    count_ = static_cast<int>(std::min<std::size_t>(count, std::numeric_limits<int>::max()));
    fault_.reset();
    endResetModel();
    return true;
}

int GridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count_;
}

int GridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant GridModel::data(const QModelIndex& position, int textRole) const
{
    if (textRole != Qt::DisplayRole || !checkIndex(position, CheckIndexOption::IndexIsValid))
        return {};
    return cell(position);
}

QVariant GridModel::headerData(int section, Qt::Orientation direction, int textRole) const
{
    if (direction != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    if (textRole == Qt::DisplayRole || textRole == Qt::ToolTipRole)
        return toQt(columns_[static_cast<std::size_t>(section)].title);
    if (textRole == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

QString GridModel::cell(const QModelIndex& position) const
{
    if (fault_ || QtPatience::isAsking()) // The connection is at work; the window is drawn anew afterwards.
        return {};
    try {
        const auto& column = columns_[static_cast<std::size_t>(position.column())];
        QString text = toQt(asText(rows_->cell(static_cast<std::size_t>(position.row()), column.field)));
        told_.clear();
        return text;
    } catch (const RuntimeError& fault) {
        notify(fault);
        return {};
    }
}

// A box must not come up in the middle of drawing.
void GridModel::notify(const RuntimeError& fault) const
{
    fault_ = fault;
    if (std::exchange(told_, fault.description()) != told_)
        reporter_->start();
}

// What could not be read may be there again.
void GridModel::tryAgain()
{
    if (!fault_ || reporter_->isActive() || count_ == 0)
        return;
    fault_.reset();
    Q_EMIT dataChanged(index(0, 0), index(count_ - 1, columnCount() - 1));
}

} // namespace quelvarn
