#include "bench/access/bare_access.h"

#include <array>
#include <mdbtools.h>
#include <stdexcept>
#include <vector>

namespace quelvarn::bench {

namespace {

constexpr int ZEILENANFANG = 0x1fff; // The bits above are flags.

// Texts as UTF-8, all others as they lie there.
std::size_t liesZelle(MdbHandle& mdb, const MdbColumn& spalte, const MdbField& feld)
{
    if (feld.is_null || feld.siz == 0)
        return 0;
    if (spalte.col_type == MDB_MEMO) {
        char* text = mdb_col_to_string(&mdb, mdb.pg_buf, feld.start, MDB_MEMO, feld.siz);
        const std::size_t laenge = std::char_traits<char>::length(text);
        g_free(text);
        return laenge;
    }
    if (spalte.col_type != MDB_TEXT)
        return static_cast<std::size_t>(feld.siz);
    std::array<char, 1024> text; // A text has 255 characters at most.
    return static_cast<std::size_t>(mdb_unicode2ascii(&mdb, static_cast<const char*>(feld.value),
                                                      static_cast<std::size_t>(feld.siz), text.data(), text.size()));
}

std::size_t liesTabelle(MdbHandle& mdb, MdbTableDef& tabelle)
{
    std::vector<MdbField> felder(tabelle.num_cols);
    std::size_t bytes = 0;
    mdb_rewind_table(&tabelle);
    while (mdb_fetch_row(&tabelle) != 0) {
        int anfang = 0;
        std::size_t laenge = 0;
        mdb_find_row(&mdb, static_cast<int>(tabelle.cur_row) - 1, &anfang, &laenge);
        mdb_crack_row(&tabelle, anfang & ZEILENANFANG, laenge, felder.data());
        for (const MdbField& feld : felder)
            bytes += liesZelle(mdb, *static_cast<MdbColumn*>(g_ptr_array_index(tabelle.columns, feld.colnum)), feld);
    }
    return bytes;
}

} // namespace

std::size_t liesAlleZellen(const std::filesystem::path& datei)
{
    MdbHandle* mdb = mdb_open(datei.c_str(), MDB_NOFLAGS);
    if (mdb == nullptr || mdb_read_catalog(mdb, MDB_TABLE) == nullptr)
        throw std::runtime_error("libmdb cannot open " + datei.string());
    std::size_t bytes = 0;
    for (unsigned i = 0; i < mdb->num_catalog; ++i) {
        auto* eintrag = static_cast<MdbCatalogEntry*>(g_ptr_array_index(mdb->catalog, i));
        if (mdb_is_user_table(eintrag) == 0)
            continue;
        MdbTableDef* tabelle = mdb_read_table(eintrag);
        mdb_read_columns(tabelle);
        bytes += liesTabelle(*mdb, *tabelle);
        mdb_free_tabledef(tabelle);
    }
    mdb_close(mdb);
    return bytes;
}

} // namespace quelvarn::bench
