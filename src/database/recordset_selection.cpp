#include "database/catalog.h"
#include "database/connection.h"
#include "database/recordset.h"
#include "database/recordset_core.h"

#include <numeric>

namespace quelvarn {

void Recordset::openRows(std::string_view table, std::vector<RowKey> key, Connection& connection)
{
    auto fresh = std::make_unique<Core>();
    fresh->small = core_->small;
    if (!connection.open())
        throw recordsetFault(3709, "Die Verbindung zur Datenbank ist nicht geöffnet.");
    fresh->rows.openRows(connection.engine_, table, std::move(key), fresh->small);
    fresh->view.showAll(fresh->rows.count());
    fresh->open = true;
    core_ = std::move(fresh);
}

void RowStore::openRows(std::shared_ptr<Engine> engine, std::string_view table, std::vector<RowKey> key,
                        std::size_t small)
{
    const auto schema = engine->findTable(table);
    if (!schema)
        throw recordsetFault(FAULT_MISSING_TABLE, "Die Tabelle '" + std::string(table) + "' gibt es nicht.");
    *this = {};
    engine_ = std::move(engine);
    query_.table = schema->name;
    fields_ = schema->columns;
    columns_.resize(fields_.size());
    hasKey_ = true;
    count_ = key.size();
    key_ = std::move(key);
    if (count_ > small)
        return;

    std::vector<RowNumber> rows(count_);
    std::iota(rows.begin(), rows.end(), RowNumber{0});
    std::vector<std::size_t> all(fields_.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    const std::vector<Value> values = readCells(rows, all);
    for (std::size_t field = 0; field < fields_.size(); ++field) {
        columns_[field] = newColumn(fields_[field].type);
        for (std::size_t row = 0; row < count_; ++row)
            columns_[field]->append(values[row * fields_.size() + field]);
        columns_[field]->commit();
    }
}

} // namespace quelvarn
