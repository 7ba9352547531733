#pragma once

#include "filter/filter_state.h"

#include <QAbstractTableModel>

namespace quelvarn {

// HauptwertTabelle for a grid: the values a to g with their bounds.
class MainValueModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;
    using Bounds = std::array<MainValueBand, MAIN_VALUE_COUNT>;

    void display(const Bounds& bounds);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& position, int textRole) const override;
    QVariant headerData(int section, Qt::Orientation direction, int textRole) const override;

private:
    Bounds bounds_;
};

} // namespace quelvarn
