#pragma once

#include <string>

namespace quelvarn::bench {

// A window with the list of PartTabelle. Each operation ends when the list is painted.
class ListWindow
{
public:
    virtual ~ListWindow() = default;

    // All rows, in the order of the list.
    virtual void open() = 0;
    virtual void close() = 0;
    // Rows whose column has this text anywhere, in any case; "" for all of them.
    virtual void filter(const std::string& column, const std::string& text) = 0;
    // "" for the order of opening.
    virtual void sort(const std::string& column) = 0;
    // Reads all fields of the row and makes it current.
    virtual void showRow(int row) = 0;
    virtual int count() const = 0;
};

} // namespace quelvarn::bench
