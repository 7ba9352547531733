#pragma once

#include <QAbstractItemModel>

#include <string>
#include <vector>

namespace quelvarn {

struct StructureNode;

// The tree of the structure features for a view: "Root" and what has been read below it.
class FeatureTree : public QAbstractItemModel
{
    Q_OBJECT

public:
    using QAbstractItemModel::QAbstractItemModel;

    // A level read meanwhile is added; the view keeps what is unfolded unless other nodes stand there now.
    void display(const StructureNode& root);
    // The values from level C down; empty for "Root".
    std::vector<std::string> documentPath(const QModelIndex& position) const;
    QModelIndex find(const std::vector<std::string>& documentPath) const;
    QString statusRow(const QModelIndex& position) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& kind) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& /*parent*/ = {}) const override { return 1; }
    QVariant data(const QModelIndex& position, int textRole) const override;

private:
    // The view's own copy: a node stays in its place until the view knows better.
    struct Ast
    {
        Ast* parent = nullptr;
        int row = 0;
        std::string value;
        std::string statusRow;
        std::vector<Ast> children; // Filled once.
    };

    static bool fits(const Ast& ast, const StructureNode& node);
    static void fill(Ast& ast, const StructureNode& node);
    void complete(Ast& ast, const StructureNode& node);
    QModelIndex position(const Ast& ast) const;
    const Ast* ast(const QModelIndex& position) const;

    Ast root_;
};

} // namespace quelvarn
