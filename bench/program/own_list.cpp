#include "bench/program/own_list.h"

#include <stdexcept>

namespace quelvarn::bench {

OwnList::OwnList(const std::filesystem::path& file)
    : grid_("Liste",
            {{"Dokumentname", "DokuBez"},
             {"Revision", "RevBez"},
             {"Dateiname", "Dateiname"},
             {"Pfad- und Dateiname", "filename"}},
            {26, 11, 24, 39})
{
    connection_.Open(file);
    grid_.resize(WINDOW);
    grid_.show();
}

void OwnList::open()
{
    rows_.Open("SELECT * FROM PartTabelle ORDER BY DokuBez, RevBez DESC", connection_);
    display();
}

void OwnList::close()
{
    grid_.display(nullptr, ++generation_);
    rows_.Close();
}

void OwnList::filter(const std::string& column, const std::string& text)
{
    rows_.Filter(text.empty() ? text : column + " Like '*" + text + "*'");
    display();
}

void OwnList::sort(const std::string& column)
{
    rows_.Sort(column);
    display();
}

void OwnList::showRow(int row)
{
    rows_.setPosition(static_cast<std::size_t>(row));
    std::size_t length = 0;
    for (const ColumnInfo& field : rows_.fields())
        length += rows_.Text(field.name).size();
    if (length == 0)
        throw std::runtime_error("the rows are empty");
    grid_.display(&rows_, generation_);
    painter_.wait();
}

void OwnList::display()
{
    grid_.display(&rows_, ++generation_);
    painter_.wait();
}

} // namespace quelvarn::bench
