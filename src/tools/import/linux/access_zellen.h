#pragma once

#include "tools/import/nachrichten.h"

#include <mdbtools.h>
#include <string>
#include <string_view>

namespace quelvarn::tools {

Spaltenart spaltenart(int typ);

// Turns the fields of a row, as libmdb finds them, into cells of a message.
class Zellenleser
{
public:
    explicit Zellenleser(MdbHandle& mdb) : mdb_(mdb) {}
    void zelle(const MdbColumn& spalte, const MdbField& feld, Packer& ziel);

private:
    void zahl(const MdbColumn& spalte, const MdbField& feld, Packer& ziel);
    void dezimalzahl(const MdbColumn& spalte, const MdbField& feld, Packer& ziel);
    void text(std::string_view bytes, Packer& ziel);
    void memo(std::string_view feld, Packer& ziel);
    bool liesMemoseiten(std::uint32_t seiteUndZeile, std::size_t laenge, bool eineSeite);

    MdbHandle& mdb_;
    std::string utf8_;
    std::string memo_;
};

} // namespace quelvarn::tools
