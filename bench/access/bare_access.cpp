#include "bench/access/bare_access.h"

#include <array>
#include <mdbtools.h>
#include <stdexcept>
#include <vector>

namespace quelvarn::bench {

namespace {

constexpr int ROW_START = 0x1fff; // The bits above are flags.

// Texts as UTF-8, all others as they lie there.
std::size_t readCell(MdbHandle& mdb, const MdbColumn& column, const MdbField& field)
{
    if (field.is_null || field.siz == 0)
        return 0;
    if (column.col_type == MDB_MEMO) {
        char* text = mdb_col_to_string(&mdb, mdb.pg_buf, field.start, MDB_MEMO, field.siz);
        const std::size_t length = std::char_traits<char>::length(text);
        g_free(text);
        return length;
    }
    if (column.col_type != MDB_TEXT)
        return static_cast<std::size_t>(field.siz);
    std::array<char, 1024> text; // A text has 255 characters at most.
    return static_cast<std::size_t>(mdb_unicode2ascii(&mdb, static_cast<const char*>(field.value),
                                                      static_cast<std::size_t>(field.siz), text.data(), text.size()));
}

std::size_t readTable(MdbHandle& mdb, MdbTableDef& table)
{
    std::vector<MdbField> fields(table.num_cols);
    std::size_t bytes = 0;
    mdb_rewind_table(&table);
    while (mdb_fetch_row(&table) != 0) {
        int begin = 0;
        std::size_t length = 0;
        mdb_find_row(&mdb, static_cast<int>(table.cur_row) - 1, &begin, &length);
        mdb_crack_row(&table, begin & ROW_START, length, fields.data());
        for (const MdbField& field : fields)
            bytes += readCell(mdb, *static_cast<MdbColumn*>(g_ptr_array_index(table.columns, field.colnum)), field);
    }
    return bytes;
}

} // namespace

std::size_t readAllCells(const std::filesystem::path& file)
{
    MdbHandle* mdb = mdb_open(file.c_str(), MDB_NOFLAGS);
    if (mdb == nullptr || mdb_read_catalog(mdb, MDB_TABLE) == nullptr)
        throw std::runtime_error("libmdb cannot open " + file.string());
    std::size_t bytes = 0;
    for (unsigned i = 0; i < mdb->num_catalog; ++i) {
        auto* entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(mdb->catalog, i));
        if (mdb_is_user_table(entry) == 0)
            continue;
        MdbTableDef* table = mdb_read_table(entry);
        mdb_read_columns(table);
        bytes += readTable(*mdb, *table);
        mdb_free_tabledef(table);
    }
    mdb_close(mdb);
    return bytes;
}

} // namespace quelvarn::bench
