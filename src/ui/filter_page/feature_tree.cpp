#include "ui/filter_page/feature_tree.h"

#include "filter/structure_section.h"
#include "ui/text.h"
#include "ui/value_text.h"

#include <algorithm>

namespace quelvarn {

bool Merkmalbaum::passt(const Ast& ast, const Strukturknoten& knoten)
{
    return ast.kinder.empty() || std::equal(ast.kinder.begin(), ast.kinder.end(), knoten.kinder.begin(),
                                            knoten.kinder.end(), [](const Ast& kind, const Strukturknoten& wie) {
                                                return kind.wert == wie.wert && passt(kind, wie);
                                            });
}

void Merkmalbaum::fuelle(Ast& ast, const Strukturknoten& knoten)
{
    ast.kinder.reserve(knoten.kinder.size());
    for (const Strukturknoten& kind : knoten.kinder)
        ast.kinder.push_back({&ast, static_cast<int>(ast.kinder.size()), kind.wert, kind.statuszeile, {}});
    for (std::size_t i = 0; i < ast.kinder.size(); ++i)
        fuelle(ast.kinder[i], knoten.kinder[i]);
}

void Merkmalbaum::ergaenze(Ast& ast, const Strukturknoten& knoten)
{
    ast.statuszeile = knoten.statuszeile;
    if (ast.kinder.empty() && !knoten.kinder.empty()) {
        beginInsertRows(stelle(ast), 0, static_cast<int>(knoten.kinder.size()) - 1);
        fuelle(ast, knoten);
        endInsertRows();
        return;
    }
    for (std::size_t i = 0; i < ast.kinder.size(); ++i)
        ergaenze(ast.kinder[i], knoten.kinder[i]);
}

void Merkmalbaum::zeige(const Strukturknoten& wurzel)
{
    if (passt(wurzel_, wurzel))
        return ergaenze(wurzel_, wurzel);
    beginResetModel();
    wurzel_ = {};
    fuelle(wurzel_, wurzel);
    endResetModel();
}

std::vector<std::string> Merkmalbaum::pfad(const QModelIndex& stelle) const
{
    std::vector<std::string> werte;
    for (const Ast* knoten = ast(stelle); knoten != nullptr && knoten->eltern != nullptr; knoten = knoten->eltern)
        werte.insert(werte.begin(), knoten->wert);
    return werte;
}

QModelIndex Merkmalbaum::finde(const std::vector<std::string>& pfad) const
{
    const Ast* knoten = &wurzel_;
    for (const std::string& wert : pfad) {
        const auto kind = std::find_if(knoten->kinder.begin(), knoten->kinder.end(),
                                       [&wert](const Ast& kandidat) { return kandidat.wert == wert; });
        if (kind == knoten->kinder.end())
            return {};
        knoten = &*kind;
    }
    return stelle(*knoten);
}

QString Merkmalbaum::statuszeile(const QModelIndex& stelle) const
{
    const Ast* knoten = ast(stelle);
    return knoten != nullptr ? zuQt(knoten->statuszeile) : QString();
}

QModelIndex Merkmalbaum::stelle(const Ast& ast) const
{
    return createIndex(ast.zeile, 0, &ast);
}

const Merkmalbaum::Ast* Merkmalbaum::ast(const QModelIndex& stelle) const
{
    return static_cast<const Ast*>(stelle.constInternalPointer());
}

QModelIndex Merkmalbaum::index(int zeile, int spalte, const QModelIndex& eltern) const
{
    if (!hasIndex(zeile, spalte, eltern))
        return {};
    return stelle(eltern.isValid() ? ast(eltern)->kinder[static_cast<std::size_t>(zeile)] : wurzel_);
}

QModelIndex Merkmalbaum::parent(const QModelIndex& kind) const
{
    const Ast* knoten = ast(kind);
    return knoten != nullptr && knoten->eltern != nullptr ? stelle(*knoten->eltern) : QModelIndex();
}

int Merkmalbaum::rowCount(const QModelIndex& eltern) const
{
    if (!eltern.isValid())
        return 1;
    return eltern.column() == 0 ? static_cast<int>(ast(eltern)->kinder.size()) : 0;
}

QVariant Merkmalbaum::data(const QModelIndex& stelle, int rolle) const
{
    const Ast* knoten = ast(stelle);
    if (knoten == nullptr)
        return {};
    if (rolle == Qt::DisplayRole)
        return knoten == &wurzel_ ? QStringLiteral("Root") : zuQt(knoten->wert);
    if (rolle == Qt::ToolTipRole && !knoten->statuszeile.empty())
        return asTip(zuQt(knoten->statuszeile));
    return {};
}

} // namespace quelvarn
