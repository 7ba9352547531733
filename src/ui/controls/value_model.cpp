#include "ui/controls/value_model.h"

#include "ui/text.h"
#include "ui/value_text.h"

#include <algorithm>

namespace quelvarn {

bool ValueModel::display(const std::vector<std::string>& values)
{
    if (values == values_)
        return false;
    beginResetModel();
    values_ = values;
    endResetModel();
    return true;
}

int ValueModel::row(const std::string& value) const
{
    const auto position = std::find(values_.begin(), values_.end(), value);
    return position != values_.end() ? static_cast<int>(position - values_.begin()) : -1;
}

int ValueModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(values_.size());
}

QVariant ValueModel::data(const QModelIndex& position, int textRole) const
{
    if (!position.isValid() || position.row() >= rowCount()) // Combos ask for no entry, too.
        return {};
    if (textRole == Qt::ToolTipRole)
        return asTip(toQt(value(position.row())));
    const bool text = textRole == Qt::DisplayRole || textRole == Qt::EditRole;
    return text ? QVariant(toQt(value(position.row()))) : QVariant();
}

} // namespace quelvarn
