#include "tools/import/reader_protocol.h"

#include "tools/console.h"

#include <cstring>

namespace quelvarn::tools {

void Packer::text(std::string_view text)
{
    number32(static_cast<std::uint32_t>(text.size()));
    bytes_.append(text);
}

void Packer::catalog(const Catalog& catalog)
{
    number32(static_cast<std::uint32_t>(catalog.tables.size()));
    for (const auto& table : catalog.tables) {
        text(table.name);
        number32(table.rows);
        number32(static_cast<std::uint32_t>(table.columns.size()));
        for (const auto& column : table.columns) {
            text(column.name);
            number8(static_cast<std::uint8_t>(column.kind));
        }
    }
    number32(static_cast<std::uint32_t>(catalog.remaining.size()));
    for (const auto& name : catalog.remaining)
        text(name);
}

void Packer::integer(std::int64_t value)
{
    cell(CellKind::Integer);
    raw(&value, sizeof value);
}

void Packer::floatingPoint(CellKind kind, double value)
{
    cell(kind);
    raw(&value, sizeof value);
}

void Packer::textCell(std::string_view value)
{
    cell(CellKind::Text);
    text(value);
}

std::string_view Unpacker::take(std::size_t count)
{
    if (count > rest_.size())
        throw toolFault("Die Access-Datei ist beschädigt: ihr Inhalt kommt unvollständig an.");
    const auto part = rest_.substr(0, count);
    rest_.remove_prefix(count);
    return part;
}

template <typename Number> Number Unpacker::takeNumber()
{
    Number number;
    std::memcpy(&number, take(sizeof number).data(), sizeof number);
    return number;
}

std::uint8_t Unpacker::number8()
{
    return takeNumber<std::uint8_t>();
}

std::uint32_t Unpacker::number32()
{
    return takeNumber<std::uint32_t>();
}

std::string_view Unpacker::text()
{
    return take(number32());
}

Catalog Unpacker::catalog()
{
    Catalog catalog;
    for (auto tables = number32(); tables > 0; --tables) {
        SourceTable table{.name = std::string(text()), .columns = {}, .rows = number32()};
        for (auto columns = number32(); columns > 0; --columns) {
            SourceColumn column{.name = std::string(text())};
            column.kind = static_cast<ColumnKind>(number8());
            table.columns.push_back(std::move(column));
        }
        catalog.tables.push_back(std::move(table));
    }
    for (auto names = number32(); names > 0; --names)
        catalog.remaining.emplace_back(text());
    return catalog;
}

Cell Unpacker::cell()
{
    Cell cell{.kind = static_cast<CellKind>(number8())};
    switch (cell.kind) {
    case CellKind::Integer:
        cell.integer = takeNumber<std::int64_t>();
        break;
    case CellKind::FloatingPoint:
    case CellKind::Date:
        cell.floatingPoint = takeNumber<double>();
        break;
    case CellKind::Text:
        cell.text = text();
        break;
    default:
        break;
    }
    return cell;
}

} // namespace quelvarn::tools
