#pragma once

#include "filter/filter_state.h"

#include <QAbstractTableModel>
#include <QTableView>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// The rows of a FilterWerteTabelle for a grid: Benennung and Wert.
class Wertmodell : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit Wertmodell(QObject* parent);

    void zeige(const std::vector<FilterRow>& werte);
    void setzeKopf(std::string_view text); // Of the column Wert.
    // Set: a Wert may be edited, and this is told of it when the editor is closed. The grid shows the new text until it
    // is shown another one.
    std::function<void(std::size_t zeile, const std::string& wert)> bearbeitet;

    void tellEntered(); // At once instead.

    int rowCount(const QModelIndex& eltern = {}) const override;
    int columnCount(const QModelIndex& eltern = {}) const override;
    QVariant data(const QModelIndex& stelle, int rolle) const override;
    QVariant headerData(int abschnitt, Qt::Orientation richtung, int rolle) const override;
    Qt::ItemFlags flags(const QModelIndex& stelle) const override;
    bool setData(const QModelIndex& stelle, const QVariant& wert, int rolle) override;

Q_SIGNALS:
    void entered();

private:
    struct Entered
    {
        std::size_t row;
        std::string value;
    };

    std::vector<FilterRow> werte_;
    std::optional<Entered> entered_; // Not told yet.
    std::string kopf_ = "Filterwerte";
};

// A grid of filter values, in the look of the others.
class Werttabelle : public QTableView
{
    Q_OBJECT

public:
    explicit Werttabelle(const char* name);

    Wertmodell& zeilen() { return *modell_; }
    // What is being written counts: closes an open editor and tells its text.
    void takeInput();

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    Wertmodell* modell_;
};

} // namespace quelvarn
