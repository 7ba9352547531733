#include "documents/row_memory.h"

#include "base/collation.h"
#include "database/sql/conditions.h"
#include "documents/document_table.h"

#include <algorithm>
#include <optional>

namespace quelvarn {
namespace {

struct Fundstelle
{
    std::size_t position = 0;
    bool derselbePfad = false;
};

// Looks through the rows of one DokuBez, which stand together. Another path with the same revision is second best.
std::optional<Fundstelle> findeDokument(Recordset& tabelle, const Merkzeile& zeile)
{
    std::optional<Fundstelle> zweitbeste;
    if (zeile.DokuBez.empty()) // Null as well, which meets no condition. They stand before all others.
        tabelle.MoveFirst();
    else
        tabelle.Find("DokuBez = " + sql::quoted(zeile.DokuBez), 0, Suchrichtung::Vorwaerts, true);
    for (; !tabelle.Eof() && equalText(tabelle.Text("DokuBez"), zeile.DokuBez); tabelle.MoveNext()) {
        if (!equalText(tabelle.Text("RevBez"), zeile.RevBez))
            continue;
        if (equalText(tabelle.Text("filename"), zeile.filename))
            return Fundstelle{tabelle.AbsolutePosition(), true};
        if (!zweitbeste)
            zweitbeste = Fundstelle{tabelle.AbsolutePosition()};
    }
    return zweitbeste;
}

bool stelleAufFund(Recordset& tabelle, const Merkzeile& zeile, bool nurDieserPfad)
{
    if (!tabelle.offen() || tabelle.leer())
        return false;
    const std::size_t vorher = tabelle.AbsolutePosition();
    const auto gefunden = findeDokument(tabelle, zeile);
    if (gefunden && (gefunden->derselbePfad || !nurDieserPfad)) {
        tabelle.setzeAbsolutePosition(gefunden->position);
        return true;
    }
    if (vorher < tabelle.RecordCount())
        tabelle.setzeAbsolutePosition(vorher);
    return false;
}

} // namespace

Merkzeile merkeZeile(const DocumentTable& table)
{
    const DokuRecord& record = table.record();
    Merkzeile zeile{record.DokuBez, record.RevBez, record.filename, 0};
    const Recordset& rows = table.rows();
    if (!table.isFiltered() && table.hasRows() && !rows.Eof() && !rows.Bof())
        zeile.position = rows.AbsolutePosition();
    return zeile;
}

void stelleAuf(Recordset& tabelle, const Merkzeile& zeile)
{
    const std::size_t letzte = tabelle.RecordCount() - 1;
    const auto gefunden = findeDokument(tabelle, zeile);
    tabelle.setzeAbsolutePosition(gefunden ? gefunden->position : std::min(zeile.position, letzte));
}

bool stelleAufDatei(Recordset& tabelle, const Merkzeile& zeile)
{
    return stelleAufFund(tabelle, zeile, true);
}

bool stelleAufDokument(Recordset& tabelle, const Merkzeile& zeile)
{
    return stelleAufFund(tabelle, zeile, false);
}

} // namespace quelvarn
