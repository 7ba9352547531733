#include "base/utf8.h"
#include "tools/check/checks.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn::tools {

namespace {

struct CellFaults
{
    Vorkommen noText;     // Bytes that are no UTF-8, or a NUL.
    Vorkommen controls;   // Characters that nobody types.
    Vorkommen wrongKinds; // A text in a number column, a date that is none.
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
        faults.noText.merke(column);
    else if (std::ranges::any_of(text, [](char character) { return isControl(static_cast<unsigned char>(character)); }))
        faults.controls.merke(column);
}

bool fits(const Value& value, FeldTyp type)
{
    switch (type) {
    case FeldTyp::Ganzzahl:
        return std::holds_alternative<std::int64_t>(value);
    case FeldTyp::Gleitkomma:
        return std::holds_alternative<double>(value) || std::holds_alternative<std::int64_t>(value);
    case FeldTyp::Datum:
        return std::holds_alternative<Zeitpunkt>(value);
    case FeldTyp::Text:
        break;
    }
    return std::holds_alternative<std::string>(value);
}

void checkRow(const Zeilenleser& row, CellFaults& faults)
{
    for (std::size_t i = 0; i < row.spalten().size(); ++i) {
        const Spalte& column = row.spalten()[i];
        if (row.istNull(i))
            continue;
        const Value value = row.wert(i);
        if (!fits(value, column.typ))
            faults.wrongKinds.merke(column.name);
        else if (const auto* text = std::get_if<std::string>(&value))
            checkText(*text, column.name, faults);
    }
}

void checkTable(Engine& engine, const std::string& table, Befund& befund, Verlaufsanzeige& anzeige)
{
    const auto schema = engine.findTabelle(table);
    if (!schema || schema->spalten.empty())
        return;
    std::vector<std::string> columns;
    for (const Spalte& column : schema->spalten)
        columns.push_back(column.name);
    CellFaults faults;
    std::uint64_t count = 0;
    for (const auto rows = findZeilen(engine, table, std::move(columns)); rows->next();) {
        anzeige.melde(table, ++count);
        checkRow(*rows, faults);
    }
    if (faults.noText.anzahl() > 0)
        befund.fehler(fmt::format("{}: {}", table, faults.noText.text("Texte, die keine sind")));
    if (faults.wrongKinds.anzahl() > 0)
        befund.fehler(fmt::format("{}: {}", table, faults.wrongKinds.text("Werte, die nicht zu ihrer Spalte passen")));
    if (faults.controls.anzahl() > 0)
        befund.warnung(fmt::format("{}: {}", table, faults.controls.text("Texte mit Steuerzeichen")));
}

} // namespace

void checkCells(Engine& engine, Befund& befund, Verlaufsanzeige& anzeige)
{
    for (const Tabellenschema& table : registerschema())
        attempt("Die Tabelle " + table.name, befund, [&] { checkTable(engine, table.name, befund, anzeige); });
}

} // namespace quelvarn::tools
