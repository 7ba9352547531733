#include "tools/check/links.h"

#include "database/document_types.h"
#include "tools/check/documents.h"
#include "tools/check/findings.h"
#include "tools/console.h"

#include <fmt/format.h>

namespace quelvarn::tools {

namespace {

// A column that names the file of a document.
struct Reference
{
    std::string_view table;
    std::string_view column;
};

constexpr std::array<Reference, 9> REFERENCES{{
    {"ZusBauPart", "Assembfilename"},
    {"ZusBauPart", "Part"},
    {"ZusBauSubAss", "Assembfilename"},
    {"ZusBauSubAss", "Subassembly"},
    {"VerbindungDraftPart", "filenameDraft"},
    {"VerbindungDraftPart", "PfadAssembPart"},
    {"VerbindungWeldAssemb", "filenameWeld"},
    {"VerbindungWeldAssemb", "PfadAssemb"},
    {"VerbindungPartZusDoku", "Dokufilename"},
}};

void checkProperties(Engine& engine, const DocumentType& type, Findings& findings, ProgressLine& display,
                     const DocumentKey& key)
{
    const auto rows = findRows(engine, type.tableUserDef, {"DokuBez", "RevBez"});
    const auto& documents = key.documents[static_cast<std::size_t>(type.tab)];
    Occurrences orphaned;
    std::uint64_t count = 0;
    while (rows && rows->next()) {
        display.notify(type.tableUserDef, ++count);
        if (!DocumentKey::contains(documents, DocumentKey::from(rows->text(0), rows->text(1))))
            orphaned.remember(fmt::format("{} ({})", rows->text(0), rows->text(1)));
    }
    if (orphaned.count() > 0)
        findings.warn(fmt::format("{}: {}", type.tableUserDef, orphaned.text("Zeilen ohne ihr Dokument")));
}

} // namespace

void checkLinks(Engine& engine, Findings& findings, ProgressLine& display, const DocumentKey& key)
{
    for (const Reference& reference : REFERENCES) {
        const auto rows = findRows(engine, reference.table, {std::string(reference.column)});
        Occurrences orphaned;
        std::uint64_t count = 0;
        while (rows && rows->next()) {
            display.notify(reference.table, ++count);
            const bool there = !rows->isNull(0) && DocumentKey::contains(key.files, DocumentKey::from(rows->text(0)));
            if (!there)
                orphaned.remember(rows->isNull(0) ? "Null" : rows->text(0));
        }
        if (orphaned.count() > 0)
            findings.warn(fmt::format(
                "{}: {}", reference.table,
                orphaned.text(fmt::format("Zeilen, deren {} in keiner Dokumenttabelle steht", reference.column))));
    }
    for (const DocumentType& type : DOCUMENT_TYPES)
        checkProperties(engine, type, findings, display, key);
}

} // namespace quelvarn::tools
