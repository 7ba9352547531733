#include "ui/filter_page/feature_tree.h"

#include "filter/structure_section.h"
#include "ui/text.h"
#include "ui/value_text.h"

#include <algorithm>

namespace quelvarn {

bool FeatureTree::fits(const Ast& ast, const StructureNode& node)
{
    return ast.children.empty() || std::equal(ast.children.begin(), ast.children.end(), node.children.begin(),
                                              node.children.end(), [](const Ast& kind, const StructureNode& pattern) {
                                                  return kind.value == pattern.value && fits(kind, pattern);
                                              });
}

void FeatureTree::fill(Ast& ast, const StructureNode& node)
{
    ast.children.reserve(node.children.size());
    for (const StructureNode& kind : node.children)
        ast.children.push_back({&ast, static_cast<int>(ast.children.size()), kind.value, kind.statusRow, {}});
    for (std::size_t i = 0; i < ast.children.size(); ++i)
        fill(ast.children[i], node.children[i]);
}

void FeatureTree::complete(Ast& ast, const StructureNode& node)
{
    ast.statusRow = node.statusRow;
    if (ast.children.empty() && !node.children.empty()) {
        beginInsertRows(position(ast), 0, static_cast<int>(node.children.size()) - 1);
        fill(ast, node);
        endInsertRows();
        return;
    }
    for (std::size_t i = 0; i < ast.children.size(); ++i)
        complete(ast.children[i], node.children[i]);
}

void FeatureTree::display(const StructureNode& root)
{
    if (fits(root_, root))
        return complete(root_, root);
    beginResetModel();
    root_ = {};
    fill(root_, root);
    endResetModel();
}

std::vector<std::string> FeatureTree::documentPath(const QModelIndex& position) const
{
    std::vector<std::string> values;
    for (const Ast* node = ast(position); node != nullptr && node->parent != nullptr; node = node->parent)
        values.insert(values.begin(), node->value);
    return values;
}

QModelIndex FeatureTree::find(const std::vector<std::string>& documentPath) const
{
    const Ast* node = &root_;
    for (const std::string& value : documentPath) {
        const auto kind = std::find_if(node->children.begin(), node->children.end(),
                                       [&value](const Ast& candidate) { return candidate.value == value; });
        if (kind == node->children.end())
            return {};
        node = &*kind;
    }
    return position(*node);
}

QString FeatureTree::statusRow(const QModelIndex& position) const
{
    const Ast* node = ast(position);
    return node != nullptr ? toQt(node->statusRow) : QString();
}

QModelIndex FeatureTree::position(const Ast& ast) const
{
    return createIndex(ast.row, 0, &ast);
}

const FeatureTree::Ast* FeatureTree::ast(const QModelIndex& position) const
{
    return static_cast<const Ast*>(position.constInternalPointer());
}

QModelIndex FeatureTree::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return position(parent.isValid() ? ast(parent)->children[static_cast<std::size_t>(row)] : root_);
}

QModelIndex FeatureTree::parent(const QModelIndex& kind) const
{
    const Ast* node = ast(kind);
    return node != nullptr && node->parent != nullptr ? position(*node->parent) : QModelIndex();
}

int FeatureTree::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return 1;
    return parent.column() == 0 ? static_cast<int>(ast(parent)->children.size()) : 0;
}

QVariant FeatureTree::data(const QModelIndex& position, int textRole) const
{
    const Ast* node = ast(position);
    if (node == nullptr)
        return {};
    if (textRole == Qt::DisplayRole)
        return node == &root_ ? QStringLiteral("Root") : toQt(node->value);
    if (textRole == Qt::ToolTipRole && !node->statusRow.empty())
        return asTip(toQt(node->statusRow));
    return {};
}

} // namespace quelvarn
