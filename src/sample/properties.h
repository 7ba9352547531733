#pragma once

#include "database/row_sink.h"
#include "sample/document_row.h"

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::sample {

// The user-defined properties of one document type.
void writeUserDefined(const Documents& documents, Tab tab, RowSink& sink);

struct UserDefinedProperty
{
    std::string_view name;
    std::string value;
    bool sendOrder = false; // A sent-to note: the value is the path of its order file.
};
std::vector<UserDefinedProperty> userDefinedProperties(const Documents& documents, std::uint32_t part, int revision);

} // namespace quelvarn::sample
