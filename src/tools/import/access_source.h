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
// Laufzeitfehler with a German sentence.
class AccessQuelle
{
public:
    // Looks at the file's head, starts the reading and waits for its catalog, no longer than `frist` where a process
    // reads. Only the wanted tables are read; their names in any case.
    AccessQuelle(const std::filesystem::path& datei, std::span<const std::string> gewuenscht,
                 std::chrono::milliseconds frist = std::chrono::minutes(1));
    ~AccessQuelle();

    const Katalog& katalog() const { return katalog_; }

    // Walks all rows: `tabelle` before the rows of each table, `zeile` with cells in the order of its columns,
    // which hold during the call.
    void lies(const std::function<void(const Quelltabelle&)>& tabelle,
              const std::function<void(std::span<const Zelle>)>& zeile);

private:
    struct Leser;
    std::unique_ptr<Leser> leser_;
    Katalog katalog_;
};

} // namespace quelvarn::tools
