#pragma once

#include "register/property_tree.h"

#include <QAbstractItemModel>

namespace quelvarn {

// The property tree of a document for a view: top nodes and their children.
class TreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    using QAbstractItemModel::QAbstractItemModel;

    // True when other nodes stand there now.
    bool display(const std::vector<Node>& roots);
    QModelIndex find(std::string_view text) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& kind) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& position, int textRole) const override;

private:
    const Node* node(const QModelIndex& position) const;

    std::vector<Node> roots_;
};

} // namespace quelvarn
