#include "ui/document_page/tree_model.h"

#include "ui/text.h"
#include "ui/theme/colours.h"

#include <algorithm>

namespace quelvarn {

namespace {

// An index carries the row of its parent plus one; 0 stands for a top node. So an index outlives its node.
constexpr quintptr WITHOUT_PARENT = 0;

bool sameNodes(const std::vector<Node>& a, const std::vector<Node>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const Node& x, const Node& y) {
        return x.text == y.text && x.red == y.red && sameNodes(x.children, y.children);
    });
}

} // namespace

bool TreeModel::display(const std::vector<Node>& roots)
{
    if (sameNodes(roots, roots_))
        return false;
    beginResetModel();
    roots_ = roots;
    endResetModel();
    return true;
}

QModelIndex TreeModel::find(std::string_view text) const
{
    for (int row = 0; row < rowCount(); ++row) {
        const QModelIndex root = index(row, 0);
        if (node(root)->text == text)
            return root;
        for (int kind = 0; kind < rowCount(root); ++kind)
            if (const QModelIndex position = index(kind, 0, root); node(position)->text == text)
                return position;
    }
    return {};
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : WITHOUT_PARENT);
}

QModelIndex TreeModel::parent(const QModelIndex& kind) const
{
    if (!kind.isValid() || kind.internalId() == WITHOUT_PARENT)
        return {};
    return createIndex(static_cast<int>(kind.internalId()) - 1, 0, WITHOUT_PARENT);
}

int TreeModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(roots_.size());
    if (parent.column() != 0 || parent.internalId() != WITHOUT_PARENT)
        return 0;
    const Node* root = node(parent);
    return root != nullptr ? static_cast<int>(root->children.size()) : 0;
}

int TreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return 1;
}

const Node* TreeModel::node(const QModelIndex& position) const
{
    const bool root = position.internalId() == WITHOUT_PARENT;
    const auto above = root ? static_cast<std::size_t>(position.row()) : position.internalId() - 1;
    if (!position.isValid() || above >= roots_.size())
        return nullptr;
    if (root)
        return &roots_[above];
    const auto& children = roots_[above].children;
    return static_cast<std::size_t>(position.row()) < children.size()
               ? &children[static_cast<std::size_t>(position.row())]
               : nullptr;
}

QVariant TreeModel::data(const QModelIndex& position, int textRole) const
{
    const Node* entry = node(position);
    if (entry == nullptr)
        return {};
    if (textRole == Qt::DisplayRole)
        return toQt(entry->text);
    if (textRole == Qt::ForegroundRole && entry->red)
        return colourSet().warning;
    if (textRole == Qt::ToolTipRole && entry->red)
        return QStringLiteral("Es gibt eine neuere Revision");
    return {};
}

} // namespace quelvarn
