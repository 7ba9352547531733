#pragma once

#include "tools/check/findings.h"
#include "tools/console.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quelvarn::tools {

// The keys of all documents, as numbers: which key is there is asked a million times.
class DocumentKey
{
public:
    static std::uint64_t from(std::string_view text);
    static std::uint64_t from(std::string_view documentName, std::string_view revisionName);

    std::vector<std::uint64_t> files;                    // of all document tables
    std::array<std::vector<std::uint64_t>, 8> documents; // of each
    void sort();
    static bool contains(const std::vector<std::uint64_t>& sorted, std::uint64_t key);
};

// Documents without a key, with a status that is none, or twice there. Gathers the keys.
void checkDocuments(Engine& engine, Findings& findings, ProgressLine& display, DocumentKey& key);
// Documents whose file is missing, under the drives of this computer.
void checkFiles(Engine& engine, Findings& findings, ProgressLine& display);

} // namespace quelvarn::tools
