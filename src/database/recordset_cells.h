#pragma once

#include "database/row_store.h"
#include "database/row_view.h"

#include <array>
#include <optional>
#include <vector>

namespace quelvarn {

// Cells of columns that are not in memory, read a few neighbouring rows at a time and kept for a while. To be
// emptied whenever rows change or their positions do.
class Zellenpuffer
{
public:
    // A cell for a list: a block of rows with the columns that were asked for so far.
    Value zelle(const Zeilenspeicher& zeilen, const Ansicht& ansicht, std::size_t position, std::size_t feld);
    // A cell of the current row: the row with all its columns. Who walks through the rows gets more and more of
    // them at once.
    Value zeilenwert(const Zeilenspeicher& zeilen, const Ansicht& ansicht, std::size_t position, std::size_t feld);
    void leere();

private:
    struct Block
    {
        std::size_t von = 0;
        std::size_t bis = 0;
        std::vector<std::size_t> felder;
        std::vector<Value> werte; // row by row
        std::uint64_t benutzt = 0;
    };
    const Value* finde(std::size_t position, std::size_t feld);
    void lese(const Zeilenspeicher& zeilen, const Ansicht& ansicht, std::size_t von, std::size_t bis,
              std::vector<std::size_t> felder);

    std::array<Block, 8> bloecke_;
    std::uint64_t uhr_ = 0;
    std::vector<std::size_t> gefragt_;
    std::size_t naechste_ = static_cast<std::size_t>(-1); // Behind the rows that zeilenwert read last.
    std::size_t schritt_ = 1;                             // How many these were.
};

} // namespace quelvarn
