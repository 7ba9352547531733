#include "ui/controls/value_model.h"

#include "ui/text.h"
#include "ui/value_text.h"

#include <algorithm>

namespace quelvarn {

bool Wertemodell::zeige(const std::vector<std::string>& werte)
{
    if (werte == werte_)
        return false;
    beginResetModel();
    werte_ = werte;
    endResetModel();
    return true;
}

int Wertemodell::zeile(const std::string& wert) const
{
    const auto stelle = std::find(werte_.begin(), werte_.end(), wert);
    return stelle != werte_.end() ? static_cast<int>(stelle - werte_.begin()) : -1;
}

int Wertemodell::rowCount(const QModelIndex& eltern) const
{
    return eltern.isValid() ? 0 : static_cast<int>(werte_.size());
}

QVariant Wertemodell::data(const QModelIndex& stelle, int rolle) const
{
    if (!stelle.isValid() || stelle.row() >= rowCount()) // Combos ask for no entry, too.
        return {};
    if (rolle == Qt::ToolTipRole)
        return asTip(zuQt(wert(stelle.row())));
    const bool text = rolle == Qt::DisplayRole || rolle == Qt::EditRole;
    return text ? QVariant(zuQt(wert(stelle.row()))) : QVariant();
}

} // namespace quelvarn
