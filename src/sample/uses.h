#pragma once

#include "database/row_sink.h"
#include "sample/document_row.h"

namespace quelvarn::sample {

void writeCheckInOut(const Documents& documents, RowSink& sink);

} // namespace quelvarn::sample
