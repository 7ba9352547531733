#include "database/recordset_columns.h"

#include "database/recordset_core.h"

#include <algorithm>

namespace quelvarn {

bool hasField(const Recordset& recordset, std::string_view name)
{
    return coreOf(recordset).rows.findField(name).has_value();
}

void setWholeLimit(Recordset& recordset, std::size_t rows)
{
    coreOf(recordset).small = std::max<std::size_t>(rows, 1);
}

bool loadColumns(Recordset& recordset, std::span<const std::string> names, const Progress& progress)
{
    Recordset::Core& core = coreOf(recordset);
    core.requireOpen();
    std::vector<std::size_t> fields;
    for (const std::string& name : names)
        fields.push_back(core.rows.fieldOf(name));
    return core.rows.load(fields, progress);
}

bool loadColumn(Recordset& recordset, std::string_view name, const Progress& progress)
{
    const std::string one(name);
    return loadColumns(recordset, {&one, 1}, progress);
}

bool columnLoaded(const Recordset& recordset, std::string_view name)
{
    return coreOf(recordset).rows.loaded(coreOf(recordset).rows.fieldOf(name));
}

std::size_t memoryNeed(const Recordset& recordset)
{
    const Recordset::Core& core = coreOf(recordset);
    return sizeof(Recordset::Core) + core.rows.memory() + core.view.memory() +
           (core.rowOrder.capacity() + core.removed.capacity()) * sizeof(RowNumber);
}

} // namespace quelvarn
