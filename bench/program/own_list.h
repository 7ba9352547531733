#pragma once

#include "bench/program/list_window.h"
#include "bench/program/painted.h"
#include "database/connection.h"
#include "database/recordset.h"
#include "ui/controls/grid.h"

#include <filesystem>

namespace quelvarn::bench {

// The grid of the program over a recordset, without the rest of its window.
class OwnList : public ListWindow
{
public:
    explicit OwnList(const std::filesystem::path& file);

    void open() override;
    void close() override;
    void filter(const std::string& column, const std::string& text) override;
    void sort(const std::string& column) override;
    void showRow(int row) override;
    int count() const override { return static_cast<int>(rows_.RecordCount()); }

private:
    void display();

    Connection connection_;
    Recordset rows_;
    Grid grid_;
    PaintWatch painter_{grid_};
    unsigned generation_ = 0;
};

} // namespace quelvarn::bench
