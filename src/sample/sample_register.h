#pragma once

#include "database/row_sink.h"
#include "sample/document_row.h"

namespace quelvarn::sample {

// Writes all tables of a plausible register, one after the other.
void writeSampleRegister(const Documents& documents, RowSink& sink);

} // namespace quelvarn::sample
