#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The binary form in which the reading process hands rows over. A message is its length (4 bytes), its kind
// (1 byte) and its content. Both ends run on the same machine, so numbers stand as they lie in memory.
namespace quelvarn::tools {

enum class PacketKind : std::uint8_t {
    Catalog = 'K', // Tables with their columns; names of the tables that are left out.
    Table = 'T',   // The rows that follow belong to the table of this number.
    Rows = 'R',
    End = 'Z',   // Everything was read.
    Fault = 'F', // A German sentence.
};

constexpr std::size_t PACKET_LIMIT = 96U << 20; // bytes; a longer one means that the sender went astray
constexpr std::size_t TEXT_LIMIT = 64U << 20;   // of one cell

enum class ColumnKind : std::uint8_t { Integer, FloatingPoint, Text, Date, Fremd };

struct SourceColumn
{
    std::string name;
    ColumnKind kind = ColumnKind::Text;
};
struct SourceTable
{
    std::string name;
    std::vector<SourceColumn> columns;
    std::uint32_t rows = 0; // As the file's own head of the table says.
};
struct Catalog
{
    std::vector<SourceTable> tables;    // The wanted ones, in the order in which their rows come.
    std::vector<std::string> remaining; // Other tables of users, left out.
};

// `Fremd` is a value of a kind that a register cannot hold, `Unreadable` one that the file has lost.
enum class CellKind : std::uint8_t { Null, Integer, FloatingPoint, Text, Date, Fremd, Unreadable };

struct Cell
{
    CellKind kind = CellKind::Null;
    std::int64_t integer = 0;
    double floatingPoint = 0; // Days for a date.
    std::string_view text;
};

// Writes numbers and texts one behind the other.
class Packer
{
public:
    void number8(std::uint8_t value) { bytes_.push_back(static_cast<char>(value)); }
    void number32(std::uint32_t value) { raw(&value, sizeof value); }
    void text(std::string_view text);
    void catalog(const Catalog& catalog);

    void cell(CellKind kind) { number8(static_cast<std::uint8_t>(kind)); }
    void integer(std::int64_t value);
    void floatingPoint(CellKind kind, double value);
    void textCell(std::string_view value);

    const std::string& bytes() const { return bytes_; }
    void clear() { bytes_.clear(); }

private:
    void raw(const void* from, std::size_t length) { bytes_.append(static_cast<const char*>(from), length); }
    std::string bytes_;
};

// Reads them back. Throws RuntimeError where the bytes end too early or make no sense.
class Unpacker
{
public:
    explicit Unpacker(std::string_view bytes) : rest_(bytes) {}
    bool empty() const { return rest_.empty(); }
    std::uint8_t number8();
    std::uint32_t number32();
    std::string_view text();
    Catalog catalog();
    Cell cell();

private:
    std::string_view take(std::size_t count);
    template <typename Number> Number takeNumber();
    std::string_view rest_;
};

} // namespace quelvarn::tools
