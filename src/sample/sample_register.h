#pragma once

#include "database/row_sink.h"
#include "sample/documents.h"

namespace quelvarn::sample {

// Writes all tables of a plausible register, one after the other.
void writeSampleRegister(const Documents& documents, RowSink& sink);

// The tables that no document type owns; called by writeSampleRegister.
void writeZusBauPart(const Documents& documents, RowSink& sink);
void writeZusBauSubAss(const Documents& documents, RowSink& sink);
void writeVerbindungDraftPart(const Documents& documents, RowSink& sink);
void writeVerbindungWeldAssemb(const Documents& documents, RowSink& sink);
void writeVerbindungPartZusDoku(const Documents& documents, RowSink& sink);
void writeTIFFTabelle(const Documents& documents, RowSink& sink);
void writeIni(const Documents& documents, RowSink& sink);
void writeCheckInOut(const Documents& documents, RowSink& sink);
void writeAdresstabelle(const Documents& documents, RowSink& sink);
// The user-defined properties of one document type.
void writeUserDefined(const Documents& documents, Tab tab, RowSink& sink);

// The names (Kennung) of the recipients in the address table.
std::span<const std::string_view> receiver();

struct UserDefinedProperty
{
    std::string_view name;
    std::string value;
    bool sendOrder = false; // A sent-to note: the value is the path of its order file.
};
std::vector<UserDefinedProperty> userDefinedProperties(const Documents& documents, std::uint32_t part, int revision);

struct AdditionalDocument
{
    std::string fileName;
    std::string filename;
    bool sendAlong = false; // Stored as "/J" behind the path.
};
std::vector<AdditionalDocument> additionalDocuments(const Documents& documents, std::uint32_t part, int revision);

// The TIFF of a drawing, "" when it has none.
std::string tiffFile(const Documents& documents, std::uint32_t part, int revision);

// Calls `tun` with the number and the revision of each document.
template <typename Action> void forEachDocument(const Documents& documents, Action act)
{
    const auto& parts = documents.plan().parts();
    for (std::uint32_t part = 0; part < parts.size(); ++part)
        for (int revision = 0; revision < parts[part].revisions; ++revision)
            act(part, revision);
}

} // namespace quelvarn::sample
