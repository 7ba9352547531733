#pragma once

#include "database/recordset.h"

#include <initializer_list>
#include <string_view>
#include <utility>

namespace quelvarn {

// A recordset in memory under construction: fields first, then its rows.
class Textliste
{
public:
    explicit Textliste(std::initializer_list<std::string_view> felder)
    {
        for (const std::string_view feld : felder)
            zeilen_.FeldAnhaengen(feld, FeldTyp::Text);
    }
    Textliste& mit(std::string_view feld, FeldTyp typ)
    {
        zeilen_.FeldAnhaengen(feld, typ);
        return *this;
    }
    void zeile(std::initializer_list<std::pair<std::string_view, Value>> werte)
    {
        if (!zeilen_.offen())
            zeilen_.Open();
        zeilen_.AddNew();
        for (const auto& [feld, wert] : werte)
            zeilen_.setzeFeld(feld, wert);
        zeilen_.Update();
    }
    // Stands on the first row.
    Recordset fertig()
    {
        if (!zeilen_.offen())
            zeilen_.Open();
        if (!zeilen_.leer())
            zeilen_.MoveFirst();
        return std::move(zeilen_);
    }

private:
    Recordset zeilen_;
};

} // namespace quelvarn
