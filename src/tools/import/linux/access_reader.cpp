#include "tools/import/linux/access_reader.h"

#include "base/collation.h"
#include "tools/console.h"
#include "tools/import/linux/jet_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <fmt/format.h>
#include <mdbtools.h>
#include <memory>

namespace quelvarn::tools {

namespace {

constexpr std::size_t PACKET_FULL = 128U << 10; // bytes: rows go out in messages of about this length
constexpr unsigned long DIRECTORY_PAGE = 2;
constexpr int ROW_START = 0x1fff; // The bits above are flags.
constexpr std::uint32_t MEMO_LENGTH = 0x3fffffff;
constexpr std::uint32_t MEMO_IN_ROW = 0x80000000;
constexpr std::uint32_t MEMO_ON_ONE_PAGE = 0x40000000;

template <auto Release> struct Releaser
{
    template <typename T> void operator()(T* what) const { Release(what); }
};
using Handle = std::unique_ptr<MdbHandle, Releaser<mdb_close>>;
using TableDefinition = std::unique_ptr<MdbTableDef, Releaser<mdb_free_tabledef>>;

RuntimeError damaged(const std::string& what)
{
    return toolFault(
        fmt::format("Die Access-Datei ist beschädigt: {} Lassen Sie sie in Access komprimieren und reparieren.", what));
}

template <typename Number> Number numberFrom(const void* bytes)
{
    Number number;
    std::memcpy(&number, bytes, sizeof number);
    return number;
}

// 0.1 as single precision is to read 0.1, not 0.10000000149.
double asDouble(float number)
{
    std::array<char, 32> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    double result = number;
    std::from_chars(text.data(), end, result);
    return result;
}

int smallest(int type) // bytes
{
    switch (type) {
    case MDB_BYTE:
        return 1;
    case MDB_INT:
        return 2;
    case MDB_LONGINT:
    case MDB_FLOAT:
        return 4;
    case MDB_MONEY:
    case MDB_DOUBLE:
    case MDB_DATETIME:
        return 8;
    case MDB_NUMERIC:
        return 17;
    default:
        return 0;
    }
}

ColumnKind columnKind(int type)
{
    switch (type) {
    case MDB_BOOL:
    case MDB_BYTE:
    case MDB_INT:
    case MDB_LONGINT:
        return ColumnKind::Integer;
    case MDB_MONEY:
    case MDB_FLOAT:
    case MDB_DOUBLE:
    case MDB_NUMERIC:
        return ColumnKind::FloatingPoint;
    case MDB_DATETIME:
        return ColumnKind::Date;
    case MDB_TEXT:
    case MDB_MEMO:
        return ColumnKind::Text;
    default:
        return ColumnKind::Fremd;
    }
}

// Turns the fields of a row, as libmdb finds them, into cells of a message.
class CellReader
{
public:
    explicit CellReader(MdbHandle& mdb) : mdb_(mdb) {}
    void cell(const MdbColumn& column, const MdbField& field, Packer& target);

private:
    void number(const MdbColumn& column, const MdbField& field, Packer& target);
    void decimalNumber(const MdbColumn& column, const MdbField& field, Packer& target);
    void text(std::string_view bytes, Packer& target);
    void memo(std::string_view field, Packer& target);
    bool readMemoPages(std::uint32_t pageAndRow, std::size_t length, bool onePage);

    MdbHandle& mdb_;
    std::string utf8_;
    std::string memo_;
};

void CellReader::cell(const MdbColumn& column, const MdbField& field, Packer& target)
{
    if (column.col_type == MDB_BOOL) // The mark for Null is the value.
        return target.integer(field.is_null ? 0 : -1);
    if (field.is_null)
        return target.cell(CellKind::Null);
    if (field.siz < smallest(column.col_type))
        return target.cell(CellKind::Unreadable);
    if (column.col_type == MDB_TEXT)
        return text({static_cast<const char*>(field.value), static_cast<std::size_t>(field.siz)}, target);
    if (column.col_type == MDB_MEMO)
        return memo({static_cast<const char*>(field.value), static_cast<std::size_t>(field.siz)}, target);
    number(column, field, target);
}

void CellReader::number(const MdbColumn& column, const MdbField& field, Packer& target)
{
    switch (column.col_type) {
    case MDB_BYTE:
        return target.integer(numberFrom<std::uint8_t>(field.value));
    case MDB_INT:
        return target.integer(numberFrom<std::int16_t>(field.value));
    case MDB_LONGINT:
        return target.integer(numberFrom<std::int32_t>(field.value));
    case MDB_MONEY:
        return target.floatingPoint(CellKind::FloatingPoint,
                                    static_cast<double>(numberFrom<std::int64_t>(field.value)) / 10000.0);
    case MDB_FLOAT:
        return target.floatingPoint(CellKind::FloatingPoint, asDouble(numberFrom<float>(field.value)));
    case MDB_DOUBLE:
        return target.floatingPoint(CellKind::FloatingPoint, numberFrom<double>(field.value));
    case MDB_DATETIME:
        return target.floatingPoint(CellKind::Date, numberFrom<double>(field.value));
    case MDB_NUMERIC:
        return decimalNumber(column, field, target);
    default:
        return target.cell(CellKind::Fremd);
    }
}

void CellReader::decimalNumber(const MdbColumn& column, const MdbField& field, Packer& target)
{
    const std::unique_ptr<char, decltype(&g_free)> text(
        mdb_numeric_to_string(&mdb_, field.start, column.col_scale, column.col_prec), &g_free);
    double value = 0;
    const std::string_view digits = text ? text.get() : "";
    if (std::from_chars(digits.data(), digits.data() + digits.size(), value).ec != std::errc())
        return target.cell(CellKind::Unreadable);
    target.floatingPoint(CellKind::FloatingPoint, value);
}

void CellReader::text(std::string_view bytes, Packer& target)
{
    if (IS_JET3((&mdb_)) && !bytes.empty()) {
        utf8_.resize(bytes.size() * 4 + 1); // The longest that a character of a code page can get.
        const int length = mdb_unicode2ascii(&mdb_, bytes.data(), bytes.size(), utf8_.data(), utf8_.size());
        utf8_.resize(static_cast<std::size_t>(std::max(0, length)));
    } else {
        decodeJet4(bytes, utf8_);
    }
    target.textCell(utf8_);
}

// A memo stands in the row itself, on another page, or on a chain of pages.
void CellReader::memo(std::string_view field, Packer& target)
{
    if (field.empty())
        return target.textCell({});
    if (field.size() < MDB_MEMO_OVERHEAD)
        return target.cell(CellKind::Unreadable);
    const auto heading = numberFrom<std::uint32_t>(field.data());
    const std::size_t length = heading & MEMO_LENGTH;
    if (length > TEXT_LIMIT / 4) // UTF-8 may be longer than what is stored.
        return target.cell(CellKind::Fremd);
    memo_.clear();
    if ((heading & MEMO_IN_ROW) != 0)
        memo_ = field.substr(MDB_MEMO_OVERHEAD);
    else if (!readMemoPages(numberFrom<std::uint32_t>(field.data() + 4), length, (heading & MEMO_ON_ONE_PAGE) != 0))
        return target.cell(CellKind::Unreadable);
    text(memo_, target);
}

bool CellReader::readMemoPages(std::uint32_t pageAndRow, std::size_t length, bool onePage)
{
    constexpr std::size_t REFERENCE = 4; // Each piece of a chain begins with where the next one is.
    while (memo_.size() < length) {
        void* page = nullptr;
        int begin = 0;
        size_t piece = 0;
        if (pageAndRow == 0 || mdb_find_pg_row(&mdb_, static_cast<int>(pageAndRow), &page, &begin, &piece) != 0)
            return false;
        const char* data = static_cast<const char*>(page) + begin;
        if (onePage) {
            memo_.assign(data, piece);
            return memo_.size() >= length;
        }
        if (piece <= REFERENCE)
            return false;
        pageAndRow = numberFrom<std::uint32_t>(data);
        memo_.append(data + REFERENCE, piece - REFERENCE);
    }
    return true;
}

std::int64_t fileSize(const MdbHandle& mdb)
{
    std::fseek(mdb.f->stream, 0, SEEK_END);
    return std::ftell(mdb.f->stream);
}

// The library takes a page behind the end of the file for the end of the table.
void checkPages(MdbHandle& mdb, const MdbTableDef& table)
{
    const std::int64_t pages = fileSize(mdb) / mdb.fmt->pg_size;
    gint32 page = 0;
    do {
        page =
            mdb_map_find_next(&mdb, table.usage_map, static_cast<unsigned>(table.map_sz), static_cast<guint32>(page));
        if (page < 0 || page >= pages) // Below 0: the list of its pages is on a page that is missing itself.
            throw toolFault(
                fmt::format("Die Access-Datei ist abgeschnitten: von der Tabelle {} fehlen Seiten.", table.name));
    } while (page > 0);
}

// Walks the rows of one table and sends them.
class TableReader
{
public:
    TableReader(MdbHandle& mdb, MdbTableDef& table, Sender& sender)
        : mdb_(mdb), table_(table), sender_(sender), cells_(mdb), fields_(table.num_cols)
    {}

    void read()
    {
        checkPages(mdb_, table_);
        mdb_rewind_table(&table_);
        const auto limit = static_cast<std::uint64_t>(fileSize(mdb_));
        std::uint64_t rows = 0;
        while (mdb_fetch_row(&table_) != 0) {
            row();
            // Each row takes more than a byte, so more rows than bytes means that pages go in a circle.
            if (++rows > limit)
                throw damaged(fmt::format("die Tabelle {} nimmt kein Ende.", table_.name));
        }
        send();
        if (rows < table_.num_rows)
            throw damaged(fmt::format("die Tabelle {} soll {} Zeilen haben, zu lesen sind nur {}.", table_.name,
                                      table_.num_rows, rows));
    }

private:
    void row()
    {
        int begin = 0;
        size_t length = 0;
        if (mdb_find_row(&mdb_, static_cast<int>(table_.cur_row) - 1, &begin, &length) != 0)
            throw damaged(fmt::format("eine Zeile der Tabelle {} ist nicht zu finden.", table_.name));
        if (mdb_crack_row(&table_, begin & ROW_START, length, fields_.data()) < 0)
            throw damaged(fmt::format("eine Zeile der Tabelle {} ist nicht zu lesen.", table_.name));
        for (const MdbField& field : fields_)
            cells_.cell(*static_cast<MdbColumn*>(g_ptr_array_index(table_.columns, field.colnum)), field, packet_);
        if (packet_.bytes().size() >= PACKET_FULL)
            send();
    }

    void send()
    {
        if (!packet_.bytes().empty())
            sender_.send(PacketKind::Rows, packet_.bytes());
        packet_.clear();
    }

    MdbHandle& mdb_;
    MdbTableDef& table_;
    Sender& sender_;
    CellReader cells_;
    std::vector<MdbField> fields_;
    Packer packet_;
};

SourceTable description(const MdbTableDef& table)
{
    SourceTable result{.name = table.name, .columns = {}, .rows = table.num_rows};
    for (guint i = 0; i < table.columns->len; ++i) {
        const auto& column = *static_cast<MdbColumn*>(g_ptr_array_index(table.columns, i));
        result.columns.push_back({column.name, columnKind(column.col_type)});
    }
    return result;
}

// The catalog is a table itself, always at the same page. Read from a file cut short, it would just name fewer
// tables.
void checkDirectory(MdbHandle& mdb)
{
    MdbCatalogEntry entry{};
    entry.mdb = &mdb;
    entry.object_type = MDB_TABLE;
    g_strlcpy(entry.object_name, "MSysObjects", sizeof entry.object_name);
    entry.table_pg = DIRECTORY_PAGE;
    const TableDefinition table(mdb_read_table(&entry));
    if (!table)
        throw damaged("ihr Verzeichnis der Tabellen ist nicht zu lesen.");
    checkPages(mdb, *table);
}

// Settings of the library in the environment would change what it reads.
Handle open(const std::filesystem::path& file)
{
    for (const char* name : {"MDBICONV", "MDBOPTS", "MDB_ICONV"})
        unsetenv(name);
    Handle mdb(mdb_open(file.c_str(), MDB_NOFLAGS));
    if (!mdb)
        throw damaged("ihr Kopf ist nicht zu lesen.");
    checkDirectory(*mdb);
    if (mdb_read_catalog(mdb.get(), MDB_ANY) == nullptr)
        throw damaged("ihr Verzeichnis der Tabellen ist nicht zu lesen.");
    return mdb;
}

// The definitions of the tables are put into `tables`, in the order of the catalog.
Catalog readCatalog(MdbHandle& mdb, std::span<const std::string> wanted, std::vector<TableDefinition>& tables)
{
    Catalog catalog;
    for (unsigned i = 0; i < mdb.num_catalog; ++i) {
        auto* entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(mdb.catalog, i));
        const bool linked = entry->object_type == MDB_LINKED_TABLE;
        if (!linked && mdb_is_user_table(entry) == 0)
            continue;
        const std::string name = entry->object_name;
        if (name.starts_with('~')) // Leavings of a table that is being deleted.
            continue;
        const bool sought = std::ranges::any_of(wanted, [&](const auto& w) { return equalText(w, name); });
        if (!sought || linked) {
            catalog.remaining.push_back(linked ? name + " (verknüpft)" : name);
            continue;
        }
        TableDefinition table(mdb_read_table(entry));
        if (!table || mdb_read_columns(table.get()) == nullptr)
            throw damaged(fmt::format("der Aufbau der Tabelle {} ist nicht zu lesen.", name));
        catalog.tables.push_back(description(*table));
        tables.push_back(std::move(table));
    }
    return catalog;
}

} // namespace

void readAccessFile(const std::filesystem::path& file, std::span<const std::string> wanted, Sender& sender)
{
    const Handle mdb = open(file);
    std::vector<TableDefinition> tables;
    Packer packet;
    packet.catalog(readCatalog(*mdb, wanted, tables));
    sender.send(PacketKind::Catalog, packet.bytes());
    for (std::size_t i = 0; i < tables.size(); ++i) {
        packet.clear();
        packet.number32(static_cast<std::uint32_t>(i));
        sender.send(PacketKind::Table, packet.bytes());
        TableReader(*mdb, *tables[i], sender).read();
    }
}

} // namespace quelvarn::tools
