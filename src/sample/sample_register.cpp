#include "sample/sample_register.h"

#include "database/schema.h"
#include "sample/addresses.h"
#include "sample/document_row.h"
#include "sample/links.h"
#include "sample/properties.h"
#include "sample/settings.h"
#include "sample/uses.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <utility>

namespace quelvarn::sample {

namespace {

using Writer = void (*)(const Documents&, RowSink&);

constexpr std::array<std::pair<std::string_view, Writer>, 9> TABLES{{
    {"ZusBauPart", writeZusBauPart},
    {"ZusBauSubAss", writeZusBauSubAss},
    {"VerbindungDraftPart", writeVerbindungDraftPart},
    {"VerbindungWeldAssemb", writeVerbindungWeldAssemb},
    {"VerbindungPartZusDoku", writeVerbindungPartZusDoku},
    {"TIFFTabelle", writeTIFFTabelle},
    {"Ini", writeIni},
    {"CheckInOut", writeCheckInOut},
    {"Adresstabelle", writeAdresstabelle},
}};

void writeDocuments(const Documents& documents, Tab tab, RowSink& sink)
{
    std::vector<Value> values;
    forEachDocument(documents, [&](std::uint32_t part, int revision) {
        if (documents.plan().part(part).tab != tab)
            return;
        documents.row(part, revision, values);
        sink.row(values);
    });
}

void write(const TableSchema& table, const Documents& documents, RowSink& sink)
{
    for (const DocumentType& type : DOCUMENT_TYPES) {
        if (table.name == type.table)
            return writeDocuments(documents, static_cast<Tab>(type.tab), sink);
        if (table.name == type.tableUserDef)
            return writeUserDefined(documents, static_cast<Tab>(type.tab), sink);
    }
    const auto writer =
        std::ranges::find(TABLES, std::string_view(table.name), &std::pair<std::string_view, Writer>::first);
    assert(writer != TABLES.end());
    writer->second(documents, sink);
}

} // namespace

void writeSampleRegister(const Documents& documents, RowSink& sink)
{
    for (const TableSchema& table : registerSchema()) {
        sink.table(table);
        write(table, documents, sink);
    }
}

} // namespace quelvarn::sample
