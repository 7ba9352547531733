#include "tools/check/documents.h"

#include "base/collation.h"
#include "database/document_types.h"
#include "platform/files.h"
#include "platform/system_ports.h"
#include "tools/check/findings.h"
#include "tools/console.h"

#include <algorithm>
#include <fmt/format.h>
#include <functional>
#include <unordered_set>

namespace quelvarn::tools {

namespace {

// A text of the current row; Null and "" are told apart by isNull.
std::string name(const RowReader& row)
{
    const auto part = [&](std::size_t column) { return row.isNull(column) ? "Null" : std::string(row.text(column)); };
    return fmt::format("{} ({})", part(0), part(1));
}

// What can be wrong with a document.
struct DocumentFault
{
    Occurrences withoutKey;
    Occurrences withoutFile;
    Occurrences wrongStatus;
    Occurrences twice;

    void notify(std::string_view table, Findings& findings) const
    {
        const auto fault = [&](const Occurrences& occurrences, std::string_view what) {
            if (occurrences.count() > 0)
                findings.fault(fmt::format("{}: {}", table, occurrences.text(what)));
        };
        fault(withoutKey, "Dokumente ohne DokuBez oder RevBez");
        fault(withoutFile, "Dokumente ohne filename");
        fault(wrongStatus, "Dokumente mit einem Status außerhalb von 0 bis 5");
        fault(twice, "Dokumente, die es schon gibt");
    }
};

// The first of several equal keys is no fault, each further one is.
void findDuplicates(Engine& engine, const DocumentType& type, std::vector<std::uint64_t> key, Occurrences& twice)
{
    std::ranges::sort(key);
    std::vector<std::uint64_t> multiple;
    for (std::size_t i = 1; i < key.size(); ++i)
        if (key[i] == key[i - 1])
            multiple.push_back(key[i]);
    if (multiple.empty())
        return;
    const auto rows = findRows(engine, type.table, {"DokuBez", "RevBez"});
    std::unordered_set<std::uint64_t> seen;
    while (rows->next()) {
        const auto number = DocumentKey::from(rows->text(0), rows->text(1));
        if (!std::ranges::binary_search(multiple, number))
            continue;
        if (!seen.insert(number).second)
            twice.remember(name(*rows));
    }
}

void checkTable(Engine& engine, const DocumentType& type, Findings& findings, ProgressLine& display, DocumentKey& key)
{
    const auto rows = findRows(engine, type.table, {"DokuBez", "RevBez", "filename", "Status"});
    if (!rows)
        return;
    auto& documents = key.documents[static_cast<std::size_t>(type.tab)];
    DocumentFault fault;
    std::uint64_t count = 0;
    while (rows->next()) {
        display.notify(type.table, ++count);
        if (rows->isNull(0) || rows->isNull(1) || rows->text(0).empty())
            fault.withoutKey.remember(name(*rows));
        else
            documents.push_back(DocumentKey::from(rows->text(0), rows->text(1)));
        if (rows->isNull(2) || rows->text(2).empty())
            fault.withoutFile.remember(name(*rows));
        else
            key.files.push_back(DocumentKey::from(rows->text(2)));
        const auto status = rows->isNull(3) ? -1 : rows->integer(3);
        if (status < 0 || status >= STATUS_COUNT)
            fault.wrongStatus.remember(name(*rows));
    }
    findDuplicates(engine, type, documents, fault.twice);
    findings.row(fmt::format("{}: {} Dokumente", type.table, count));
    fault.notify(type.table, findings);
}

constexpr char BEHIND_A_NAME = '\0';

// All at once: a drive may take hours for its answers, and nobody is to wait so long for the database.
std::string fileNames(Engine& engine, const DocumentType& type)
{
    std::string names;
    const auto rows = findRows(engine, type.table, {"filename"});
    while (rows && rows->next())
        if (!rows->isNull(0))
            names.append(rows->text(0)) += BEHIND_A_NAME;
    return names;
}

} // namespace

std::uint64_t DocumentKey::from(std::string_view text)
{
    return std::hash<std::string>{}(sortKey(text));
}

std::uint64_t DocumentKey::from(std::string_view documentName, std::string_view revisionName)
{
    return std::hash<std::string>{}(sortKey(documentName) + '\0' + sortKey(revisionName));
}

void DocumentKey::sort()
{
    std::ranges::sort(files);
    for (auto& table : documents)
        std::ranges::sort(table);
}

bool DocumentKey::contains(const std::vector<std::uint64_t>& sorted, std::uint64_t key)
{
    return std::ranges::binary_search(sorted, key);
}

void checkDocuments(Engine& engine, Findings& findings, ProgressLine& display, DocumentKey& key)
{
    for (const DocumentType& type : DOCUMENT_TYPES)
        checkTable(engine, type, findings, display, key);
    key.sort();
}

void checkFiles(Engine& engine, Findings& findings, ProgressLine& display)
{
    const auto system = systemPorts(standardDrivesFolder());
    for (const DocumentType& type : DOCUMENT_TYPES) {
        const std::string names = fileNames(engine, type);
        Occurrences missing;
        std::uint64_t count = 0;
        for (std::size_t begin = 0; begin < names.size();) {
            const auto end = names.find(BEHIND_A_NAME, begin);
            const auto file = std::string_view(names).substr(begin, end - begin);
            begin = end + 1;
            display.notify("Dateien", ++count);
            if (!system->files().fileExists(file))
                missing.remember(file);
        }
        if (missing.count() > 0)
            findings.warn(fmt::format("{}: {}", type.table, missing.text("Dokumente, deren Datei fehlt")));
    }
}

} // namespace quelvarn::tools
