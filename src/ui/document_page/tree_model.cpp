#include "ui/document_page/tree_model.h"

#include "ui/text.h"
#include "ui/theme/colours.h"

#include <algorithm>

namespace quelvarn {

namespace {

// An index carries the row of its parent plus one; 0 stands for a top node. So an index outlives its node.
constexpr quintptr OHNE_ELTERN = 0;

bool gleicheKnoten(const std::vector<Knoten>& a, const std::vector<Knoten>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const Knoten& x, const Knoten& y) {
        return x.text == y.text && x.rot == y.rot && gleicheKnoten(x.kinder, y.kinder);
    });
}

} // namespace

bool Baummodell::zeige(const std::vector<Knoten>& wurzeln)
{
    if (gleicheKnoten(wurzeln, wurzeln_))
        return false;
    beginResetModel();
    wurzeln_ = wurzeln;
    endResetModel();
    return true;
}

QModelIndex Baummodell::finde(std::string_view text) const
{
    for (int zeile = 0; zeile < rowCount(); ++zeile) {
        const QModelIndex wurzel = index(zeile, 0);
        if (knoten(wurzel)->text == text)
            return wurzel;
        for (int kind = 0; kind < rowCount(wurzel); ++kind)
            if (const QModelIndex stelle = index(kind, 0, wurzel); knoten(stelle)->text == text)
                return stelle;
    }
    return {};
}

QModelIndex Baummodell::index(int zeile, int spalte, const QModelIndex& eltern) const
{
    if (!hasIndex(zeile, spalte, eltern))
        return {};
    return createIndex(zeile, spalte, eltern.isValid() ? static_cast<quintptr>(eltern.row()) + 1 : OHNE_ELTERN);
}

QModelIndex Baummodell::parent(const QModelIndex& kind) const
{
    if (!kind.isValid() || kind.internalId() == OHNE_ELTERN)
        return {};
    return createIndex(static_cast<int>(kind.internalId()) - 1, 0, OHNE_ELTERN);
}

int Baummodell::rowCount(const QModelIndex& eltern) const
{
    if (!eltern.isValid())
        return static_cast<int>(wurzeln_.size());
    if (eltern.column() != 0 || eltern.internalId() != OHNE_ELTERN)
        return 0;
    const Knoten* wurzel = knoten(eltern);
    return wurzel != nullptr ? static_cast<int>(wurzel->kinder.size()) : 0;
}

int Baummodell::columnCount(const QModelIndex& /*eltern*/) const
{
    return 1;
}

const Knoten* Baummodell::knoten(const QModelIndex& stelle) const
{
    const bool wurzel = stelle.internalId() == OHNE_ELTERN;
    const auto oben = wurzel ? static_cast<std::size_t>(stelle.row()) : stelle.internalId() - 1;
    if (!stelle.isValid() || oben >= wurzeln_.size())
        return nullptr;
    if (wurzel)
        return &wurzeln_[oben];
    const auto& kinder = wurzeln_[oben].kinder;
    return static_cast<std::size_t>(stelle.row()) < kinder.size() ? &kinder[static_cast<std::size_t>(stelle.row())]
                                                                  : nullptr;
}

QVariant Baummodell::data(const QModelIndex& stelle, int rolle) const
{
    const Knoten* eintrag = knoten(stelle);
    if (eintrag == nullptr)
        return {};
    if (rolle == Qt::DisplayRole)
        return zuQt(eintrag->text);
    if (rolle == Qt::ForegroundRole && eintrag->rot)
        return farbsatz().warnung;
    if (rolle == Qt::ToolTipRole && eintrag->rot)
        return QStringLiteral("Es gibt eine neuere Revision");
    return {};
}

} // namespace quelvarn
