#pragma once

#include "ui/controls/choice_view.h"
#include "ui/controls/grid_model.h"

#include <QTableView>

#include <vector>

namespace quelvarn {

// A grid of rows of one height, quick also with a million of them.
class Grid : public ChoiceView<QTableView>
{
    Q_OBJECT

public:
    // The widths are shares of the whole; the last column takes what is left.
    Grid(std::string_view name, std::vector<GridColumn> columns, std::vector<int> shares);

    GridModel& rows() { return *model_; }
    void display(const Recordset* rows, unsigned generation);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void distributeWidths();

    GridModel* model_;
    std::vector<int> shares_;
    bool distributed_ = false; // Widths are being set by the program now.
    bool byHand_ = false;      // A person has set a width: it stays.
};

// The look and the manners of every grid of the program.
void configureGrid(QTableView& grid);

} // namespace quelvarn
