#pragma once

#include "database/row_sink.h"
#include "sample/document_row.h"

#include <span>
#include <string_view>

namespace quelvarn::sample {

void writeAdresstabelle(const Documents& documents, RowSink& sink);

// The names (Kennung) of the recipients in the address table.
std::span<const std::string_view> receiver();

} // namespace quelvarn::sample
