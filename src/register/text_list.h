#pragma once

#include "database/recordset.h"

#include <initializer_list>
#include <string_view>
#include <utility>

namespace quelvarn {

// A recordset in memory under construction: fields first, then its rows.
class TextList
{
public:
    explicit TextList(std::initializer_list<std::string_view> fields)
    {
        for (const std::string_view field : fields)
            rows_.appendField(field, FieldType::Text);
    }
    TextList& with(std::string_view field, FieldType type)
    {
        rows_.appendField(field, type);
        return *this;
    }
    void row(std::initializer_list<std::pair<std::string_view, Value>> values)
    {
        if (!rows_.open())
            rows_.Open();
        rows_.AddNew();
        for (const auto& [field, value] : values)
            rows_.setField(field, value);
        rows_.Update();
    }
    // Stands on the first row.
    Recordset finish()
    {
        if (!rows_.open())
            rows_.Open();
        if (!rows_.empty())
            rows_.MoveFirst();
        return std::move(rows_);
    }

private:
    Recordset rows_;
};

} // namespace quelvarn
