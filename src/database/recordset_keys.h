#pragma once

#include "database/column.h"
#include "database/engine.h"

#include <optional>
#include <span>
#include <vector>

namespace quelvarn {

// Finds the row of a key. Keys that lie close together take an array, others a sorted list.
class Schluesselkarte
{
public:
    explicit Schluesselkarte(std::span<const Zeilenschluessel> schluessel);
    // Quick above all when keys are asked for in ascending order.
    std::optional<Zeilennummer> findeZeile(Zeilenschluessel schluessel);

private:
    struct Eintrag
    {
        Zeilenschluessel schluessel;
        Zeilennummer zeile;
    };
    Zeilenschluessel kleinster_ = 0;
    std::vector<Zeilennummer> dicht_;
    std::vector<Eintrag> sortiert_;
    std::size_t naechster_ = 0;
};

} // namespace quelvarn
