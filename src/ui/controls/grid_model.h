#pragma once

#include "base/runtime_error.h"

#include <QAbstractTableModel>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class QTimer;

namespace quelvarn {

class Recordset;

struct GridColumn
{
    std::string_view title;
    std::string_view field;
};

// The rows of a recordset for a grid. Nothing is copied: a cell is read when it is drawn.
class GridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit GridModel(std::vector<GridColumn> columns);

    // nullptr for no rows. True when the grid was bound anew: other rows, or the same ones in another version.
    bool display(const Recordset* rows, unsigned generation);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& position, int textRole) const override;
    QVariant headerData(int section, Qt::Orientation direction, int textRole) const override;

private:
    QString cell(const QModelIndex& position) const;
    void notify(const RuntimeError& fault) const;
    void tryAgain();

    std::vector<GridColumn> columns_;
    const Recordset* rows_ = nullptr;
    unsigned generation_ = 0;
    int count_ = 0;
    mutable std::optional<RuntimeError> fault_; // While drawing: cells are empty until the next operation.
    mutable std::string told_;                  // What it said; not again before cells could be read.
    QTimer* reporter_;
};

} // namespace quelvarn
