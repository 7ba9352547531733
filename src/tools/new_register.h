#pragma once

#include "database/connection.h"
#include "database/row_sink.h"
#include "tools/console.h"
#include "tools/draft_file.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace quelvarn::tools {

// A register in the making. Whoever looks at the target sees what was there before, until commit has made
// everything visible at once; without it nothing is left behind. A SQLite file grows under another name beside
// its target, a PostgreSQL database gets one transaction.
class NewRegister : public RowSink
{
public:
    NewRegister(std::string_view target, Existing existing, Console& console);
    ~NewRegister() override;

    void table(const TableSchema& table) override;
    void row(std::span<const Value> values) override;
    // Builds the indexes, which is quicker than to keep them while rows come.
    void commit();

    std::uint64_t rows() const { return rows_; }

private:
    void prepareDatabase(std::string_view target, Existing existing);
    void endTable();
    Engine& engine() const { return *engine_; }

    std::optional<DraftFile> draft_; // The file is removed after the engine has let go of it.
    Connection connection_;
    std::shared_ptr<Engine> file_;
    Engine* engine_ = nullptr;
    bool open_ = false;
    std::vector<TableSchema> tables_;
    std::unique_ptr<Engine::BulkWriter> writer_;
    std::uint64_t rows_ = 0;
    ProgressLine display_;
};

// True for an address and for a small text file that holds one.
bool isServerTarget(std::string_view target);

} // namespace quelvarn::tools
