#pragma once

#include "filter/filter_state.h"

#include <QAbstractTableModel>
#include <QTableView>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// The rows of a FilterWerteTabelle for a grid: Benennung and Wert.
class Wertmodell : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void zeige(const std::vector<Filterwert>& werte);
    void setzeKopf(std::string_view text); // Of the column Wert.
    // Set: a Wert may be edited, and this is told of it. The grid keeps the old text until it is shown the new one.
    std::function<void(std::size_t zeile, const std::string& wert)> bearbeitet;

    int rowCount(const QModelIndex& eltern = {}) const override;
    int columnCount(const QModelIndex& eltern = {}) const override;
    QVariant data(const QModelIndex& stelle, int rolle) const override;
    QVariant headerData(int abschnitt, Qt::Orientation richtung, int rolle) const override;
    Qt::ItemFlags flags(const QModelIndex& stelle) const override;
    bool setData(const QModelIndex& stelle, const QVariant& wert, int rolle) override;

private:
    std::vector<Filterwert> werte_;
    std::string kopf_ = "Filterwerte";
};

// A grid of filter values, in the look of the others.
class Werttabelle : public QTableView
{
    Q_OBJECT

public:
    explicit Werttabelle(const char* name);

    Wertmodell& zeilen() { return *modell_; }

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    Wertmodell* modell_;
};

} // namespace quelvarn
