#pragma once

#include "tools/check/findings.h"
#include "tools/console.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quelvarn::tools {

enum class Indexes { Check, Build };

// Pages and indexes, as far as the engine checks them itself.
void checkPages(Engine& engine, Findings& findings);
// Every cell of the register's tables can be read and is what its column says.
void checkCells(Engine& engine, Findings& findings, ProgressLine& display);
// Tables, columns, their types, and indexes. Missing indexes are built when wanted.
void checkSchema(Engine& engine, Indexes indexes, Findings& findings);

// The keys of all documents, as numbers: which key is there is asked a million times.
class DocumentKey
{
public:
    static std::uint64_t out(std::string_view text);
    static std::uint64_t out(std::string_view documentName, std::string_view revisionName);

    std::vector<std::uint64_t> files;                    // of all document tables
    std::array<std::vector<std::uint64_t>, 8> documents; // of each
    void sort();
    static bool contains(const std::vector<std::uint64_t>& sorted, std::uint64_t key);
};

// Documents without a key, with a status that is none, or twice there. Gathers the keys.
void checkDocuments(Engine& engine, Findings& findings, ProgressLine& display, DocumentKey& key);
// Rows that belong to a document which is in no table.
void checkLinks(Engine& engine, Findings& findings, ProgressLine& display, const DocumentKey& key);
// Rows of the table Ini that a start complains of or mends.
void checkIni(Engine& engine, Findings& findings);
// Documents whose file is missing, under the drives of this computer.
void checkFiles(Engine& engine, Findings& findings, ProgressLine& display);

} // namespace quelvarn::tools
