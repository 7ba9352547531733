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
class FilterValueModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit FilterValueModel(QObject* parent);

    void display(const std::vector<FilterRow>& values);
    void setHeading(std::string_view text); // Of the column Wert.
    // Set: a Wert may be edited, and this is told of it when the editor is closed. The grid shows the new text until it
    // is shown another one.
    std::function<void(std::size_t row, const std::string& value)> edited;

    void tellEntered(); // At once instead.

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& position, int textRole) const override;
    QVariant headerData(int section, Qt::Orientation direction, int textRole) const override;
    Qt::ItemFlags flags(const QModelIndex& position) const override;
    bool setData(const QModelIndex& position, const QVariant& value, int textRole) override;

Q_SIGNALS:
    void entered();

private:
    struct Entered
    {
        std::size_t row;
        std::string value;
    };

    std::vector<FilterRow> values_;
    std::optional<Entered> entered_; // Not told yet.
    std::string heading_ = "Filterwerte";
};

// A grid of filter values, in the look of the others.
class ValueTable : public QTableView
{
    Q_OBJECT

public:
    explicit ValueTable(const char* name);

    FilterValueModel& rows() { return *model_; }
    // What is being written counts: closes an open editor and tells its text.
    void takeInput();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    FilterValueModel* model_;
};

} // namespace quelvarn
