#pragma once

#include "tools/import/reader_protocol.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace quelvarn::tools {

// A true Access file: on Windows read by the driver of Access, elsewhere by a process of our own. Every fault is one
// RuntimeError with a German sentence.
class AccessSource
{
public:
    // Looks at the file's head, starts the reading and waits for its catalog, no longer than `deadline` where a process
    // reads. Only the wanted tables are read; their names in any case.
    AccessSource(const std::filesystem::path& file, std::span<const std::string> wanted,
                 std::chrono::milliseconds deadline = std::chrono::minutes(1));
    ~AccessSource();

    const Catalog& catalog() const { return catalog_; }

    // Walks all rows: `table` before the rows of each table, `row` with cells in the order of its columns,
    // which hold during the call.
    void read(const std::function<void(const SourceTable&)>& table,
              const std::function<void(std::span<const Cell>)>& row);

private:
    struct Reader;
    std::unique_ptr<Reader> reader_;
    Catalog catalog_;
};

} // namespace quelvarn::tools
