#include "tools/check/cells.h"

#include "base/utf8.h"
#include "tools/check/findings.h"
#include "tools/console.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn::tools {

namespace {

struct CellFaults
{
    Occurrences noText;     // Bytes that are no UTF-8, or a NUL.
    Occurrences controls;   // Characters that nobody types.
    Occurrences wrongKinds; // A text in a number column, a date that is none.
};

bool isControl(unsigned char byte)
{
    return byte < ' ' && (byte < '\t' || byte > '\r');
}

void checkText(std::string_view text, const std::string& column, CellFaults& faults)
{
    bool plain = true; // Most are.
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        plain = plain && byte >= ' ' && byte < 0x80;
    }
    if (plain)
        return;
    if (text.find('\0') != std::string_view::npos || toUtf8(toUtf32(text)) != text)
        faults.noText.remember(column);
    else if (std::ranges::any_of(text, [](char character) { return isControl(static_cast<unsigned char>(character)); }))
        faults.controls.remember(column);
}

bool fits(const Value& value, FieldType type)
{
    switch (type) {
    case FieldType::Integer:
        return std::holds_alternative<std::int64_t>(value);
    case FieldType::FloatingPoint:
        return std::holds_alternative<double>(value) || std::holds_alternative<std::int64_t>(value);
    case FieldType::Date:
        return std::holds_alternative<DateTime>(value);
    case FieldType::Text:
        break;
    }
    return std::holds_alternative<std::string>(value);
}

void checkRow(const RowReader& row, CellFaults& faults)
{
    for (std::size_t i = 0; i < row.columns().size(); ++i) {
        const ColumnInfo& column = row.columns()[i];
        if (row.isNull(i))
            continue;
        const Value value = row.value(i);
        if (!fits(value, column.type))
            faults.wrongKinds.remember(column.name);
        else if (const auto* text = std::get_if<std::string>(&value))
            checkText(*text, column.name, faults);
    }
}

void checkTable(Engine& engine, const std::string& table, Findings& findings, ProgressLine& display)
{
    const auto schema = engine.findTable(table);
    if (!schema || schema->columns.empty())
        return;
    std::vector<std::string> columns;
    for (const ColumnInfo& column : schema->columns)
        columns.push_back(column.name);
    CellFaults faults;
    std::uint64_t count = 0;
    for (const auto rows = findRows(engine, table, std::move(columns)); rows->next();) {
        display.notify(table, ++count);
        checkRow(*rows, faults);
    }
    if (faults.noText.count() > 0)
        findings.fault(fmt::format("{}: {}", table, faults.noText.text("Texte, die keine sind")));
    if (faults.wrongKinds.count() > 0)
        findings.fault(fmt::format("{}: {}", table, faults.wrongKinds.text("Werte, die nicht zu ihrer Spalte passen")));
    if (faults.controls.count() > 0)
        findings.warn(fmt::format("{}: {}", table, faults.controls.text("Texte mit Steuerzeichen")));
}

} // namespace

void checkCells(Engine& engine, Findings& findings, ProgressLine& display)
{
    for (const TableSchema& table : registerSchema())
        attempt("Die Tabelle " + table.name, findings, [&] { checkTable(engine, table.name, findings, display); });
}

} // namespace quelvarn::tools
