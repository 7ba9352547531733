#pragma once

#include <QAbstractItemModel>

#include <string>
#include <vector>

namespace quelvarn {

struct Strukturknoten;

// The tree of the structure features for a view: "Root" and what has been read below it.
class Merkmalbaum : public QAbstractItemModel
{
    Q_OBJECT

public:
    using QAbstractItemModel::QAbstractItemModel;

    // A level read meanwhile is added; the view keeps what is unfolded unless other nodes stand there now.
    void zeige(const Strukturknoten& wurzel);
    // The values from level C down; empty for "Root".
    std::vector<std::string> pfad(const QModelIndex& stelle) const;
    QModelIndex finde(const std::vector<std::string>& pfad) const;
    QString statuszeile(const QModelIndex& stelle) const;

    QModelIndex index(int zeile, int spalte, const QModelIndex& eltern = {}) const override;
    QModelIndex parent(const QModelIndex& kind) const override;
    int rowCount(const QModelIndex& eltern = {}) const override;
    int columnCount(const QModelIndex& /*eltern*/ = {}) const override { return 1; }
    QVariant data(const QModelIndex& stelle, int rolle) const override;

private:
    // The view's own copy: a node stays in its place until the view knows better.
    struct Ast
    {
        Ast* eltern = nullptr;
        int zeile = 0;
        std::string wert;
        std::string statuszeile;
        std::vector<Ast> kinder; // Filled once.
    };

    static bool passt(const Ast& ast, const Strukturknoten& knoten);
    static void fuelle(Ast& ast, const Strukturknoten& knoten);
    void ergaenze(Ast& ast, const Strukturknoten& knoten);
    QModelIndex stelle(const Ast& ast) const;
    const Ast* ast(const QModelIndex& stelle) const;

    Ast wurzel_;
};

} // namespace quelvarn
