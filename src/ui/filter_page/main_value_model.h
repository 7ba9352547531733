#pragma once

#include "filter/filter_state.h"

#include <QAbstractTableModel>

namespace quelvarn {

// HauptwertTabelle for a grid: the values a to g with their bounds.
class Hauptwertmodell : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;
    using Grenzen = std::array<Hauptwertgrenzen, ANZAHL_HAUPTWERTE>;

    void zeige(const Grenzen& grenzen);

    int rowCount(const QModelIndex& eltern = {}) const override;
    int columnCount(const QModelIndex& eltern = {}) const override;
    QVariant data(const QModelIndex& stelle, int rolle) const override;
    QVariant headerData(int abschnitt, Qt::Orientation richtung, int rolle) const override;

private:
    Grenzen grenzen_;
};

} // namespace quelvarn
