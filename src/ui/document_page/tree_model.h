#pragma once

#include "register/property_tree.h"

#include <QAbstractItemModel>

namespace quelvarn {

// The property tree of a document for a view: top nodes and their children.
class Baummodell : public QAbstractItemModel
{
    Q_OBJECT

public:
    using QAbstractItemModel::QAbstractItemModel;

    // True when other nodes stand there now.
    bool zeige(const std::vector<Knoten>& wurzeln);
    QModelIndex finde(std::string_view text) const;

    QModelIndex index(int zeile, int spalte, const QModelIndex& eltern = {}) const override;
    QModelIndex parent(const QModelIndex& kind) const override;
    int rowCount(const QModelIndex& eltern = {}) const override;
    int columnCount(const QModelIndex& eltern = {}) const override;
    QVariant data(const QModelIndex& stelle, int rolle) const override;

private:
    const Knoten* knoten(const QModelIndex& stelle) const;

    std::vector<Knoten> wurzeln_;
};

} // namespace quelvarn
