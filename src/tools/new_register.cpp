#include "tools/new_register.h"

#include "base/file_path.h"
#include "base/text.h"
#include "database/faults.h"
#include "database/open_engine.h"

#include <fmt/format.h>

namespace quelvarn::tools {
namespace {

// Of a file that is not there yet the engine only knows that it cannot open it.
std::string whyNotMade(const DatabaseFault& fault, const std::filesystem::path& target)
{
    if (fault.kind() != FaultKind::FileGone)
        return fault.what();
    std::error_code none;
    return std::filesystem::is_directory(std::filesystem::absolute(target, none).parent_path(), none)
               ? "In den Ordner kann nicht geschrieben werden."
               : "Der Ordner ist nicht vorhanden.";
}

} // namespace

NewRegister::NewRegister(std::string_view target, Existing existing, Console& console) : display_(console)
{
    if (isServerTarget(target)) {
        prepareDatabase(target, existing);
        return;
    }
    draft_.emplace(pathFromUtf8(target), existing);
    try {
        file_ = openSqlite(draft_->path(), true);
        engine_ = file_.get();
        engine().begin();
    } catch (const DatabaseFault& fault) {
        throw toolFault(
            fmt::format("Das Ziel '{}' lässt sich nicht anlegen: {}", target, whyNotMade(fault, pathFromUtf8(target))));
    }
    open_ = true;
}

NewRegister::~NewRegister()
{
    writer_.reset();
    try {
        if (open_)
            engine().rollBack();
    } catch (const RuntimeError&) {
        // The connection is gone, and what was begun with it.
    }
}

void NewRegister::prepareDatabase(std::string_view target, Existing existing)
{
    connection_.openAddress(target);
    engine_ = &connection_.engine();
    engine().begin();
    open_ = true;
    for (const TableSchema& table : registerSchema()) {
        if (!engine().findTable(table.name))
            continue;
        if (existing == Existing::Refuse)
            throw toolFault("In der Datenbank liegt schon ein Register. Mit --replace wird es ersetzt.");
        engine().removeTable(table.name);
    }
}

void NewRegister::table(const TableSchema& table)
{
    endTable();
    engine().createTable(table);
    tables_.push_back(table);
    writer_ = engine().bulkWriter(table.name, table.columns);
}

void NewRegister::row(std::span<const Value> values)
{
    writer_->row(values);
    display_.notify(tables_.back().name, ++rows_);
}

void NewRegister::endTable()
{
    if (writer_)
        writer_->end();
    writer_.reset();
}

void NewRegister::commit()
{
    endTable();
    for (std::size_t i = 0; i < tables_.size(); ++i) {
        display_.step("Indexe der Tabelle", i + 1, tables_.size());
        engine().createIndexes(tables_[i]);
    }
    engine().commit();
    open_ = false;
    file_.reset();
    if (draft_)
        draft_->takeOver();
}

bool isServerTarget(std::string_view target)
{
    if (startsWithIgnoringCase(target, "postgresql://") || startsWithIgnoringCase(target, "postgres://"))
        return true;
    std::error_code fault;
    return std::filesystem::is_regular_file(pathFromUtf8(target), fault) &&
           recognizeDatabase(pathFromUtf8(target)) == DatabaseKind::PostgreSQL;
}

} // namespace quelvarn::tools
