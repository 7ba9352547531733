#pragma once

#include "database/column.h"

#include <optional>
#include <vector>

namespace quelvarn {

// Which rows a recordset shows, and in which order. All rows in the order of opening take no memory.
class Ansicht
{
public:
    void zeigeAlle(std::size_t zeilen);
    // `aufsteigend`: the rows stand in the order of opening.
    void zeige(std::vector<Zeilennummer> zeilen, bool aufsteigend);

    std::size_t anzahl() const { return alle_ ? anzahl_ : zeilen_.size(); }
    Zeilennummer zeile(std::size_t position) const
    {
        return alle_ ? static_cast<Zeilennummer>(position) : zeilen_[position];
    }
    std::optional<std::size_t> findePosition(Zeilennummer zeile) const;
    std::vector<Zeilennummer> ausschnitt(std::size_t von, std::size_t bis) const;

    void haengeAn(Zeilennummer zeile);
    void entferne(std::size_t position);
    std::size_t speicher() const { return zeilen_.capacity() * sizeof(Zeilennummer); }

private:
    void schreibeAus();

    bool alle_ = true;
    bool aufsteigend_ = true;
    std::size_t anzahl_ = 0;
    std::vector<Zeilennummer> zeilen_;
};

} // namespace quelvarn
