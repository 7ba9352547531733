#pragma once

#include "database/row_sink.h"
#include "sample/document_row.h"

namespace quelvarn::sample {

void writeIni(const Documents& documents, RowSink& sink);

} // namespace quelvarn::sample
