#pragma once

#include "database/row_sink.h"
#include "sample/document_row.h"

#include <string>
#include <vector>

namespace quelvarn::sample {

// The tables of what is built in where, and what belongs to it.
void writeZusBauPart(const Documents& documents, RowSink& sink);
void writeZusBauSubAss(const Documents& documents, RowSink& sink);
void writeVerbindungDraftPart(const Documents& documents, RowSink& sink);
void writeVerbindungWeldAssemb(const Documents& documents, RowSink& sink);
void writeVerbindungPartZusDoku(const Documents& documents, RowSink& sink);
void writeTIFFTabelle(const Documents& documents, RowSink& sink);

struct AdditionalDocument
{
    std::string fileName;
    std::string filename;
    bool sendAlong = false; // Stored as "/J" behind the path.
};
std::vector<AdditionalDocument> additionalDocuments(const Documents& documents, std::uint32_t part, int revision);

// The TIFF of a drawing, "" when it has none.
std::string tiffFile(const Documents& documents, std::uint32_t part, int revision);

} // namespace quelvarn::sample
