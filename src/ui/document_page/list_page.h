#pragma once

#include "ui/controls/grid_model.h"

#include <QWidget>

#include <functional>
#include <string_view>
#include <vector>

class QHBoxLayout;
class QVBoxLayout;

namespace quelvarn {

class InfoPanel;
class Grid;
enum class InfoPageId : int;

// An information page that is a titled grid over a list of the model, with little around it.
class ListPage : public QWidget
{
    Q_OBJECT

public:
    // The grid: its name, columns and their shares of the width.
    ListPage(InfoPanel& model, InfoPageId page, const QString& title, std::string_view grid,
             std::vector<GridColumn> columns, std::vector<int> shares);

    InfoPageId page() const { return page_; }
    QVBoxLayout& layout() { return *layout_; }
    QHBoxLayout& newStripRow();
    // Each brings a control around the grid up to date.
    void sequence(std::function<void()> step) { steps_.push_back(std::move(step)); }
    // A long cell of the current row stands under the grid as a whole.
    void showWhole(std::string_view field);
    // What a double click on a row does.
    void setOpen(std::function<void()> open);
    void refresh();

private:
    InfoPanel& model_;
    InfoPageId page_;
    Grid* grid_;
    QVBoxLayout* layout_;
    std::vector<std::function<void()>> steps_;
};

} // namespace quelvarn
