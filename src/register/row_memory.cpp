#include "register/row_memory.h"

#include "base/collation.h"
#include "base/text.h"
#include "register/table_page.h"

#include <algorithm>
#include <optional>

namespace quelvarn {
namespace {

// Looks through the rows of one DokuBez, which stand together. Another path with the same revision is second best.
std::optional<std::size_t> findeDokument(Recordset& tabelle, const Merkzeile& zeile)
{
    std::optional<std::size_t> zweitbeste;
    tabelle.Find("DokuBez = '" + replaceAll(zeile.DokuBez, "'", "''") + "'", 0, Suchrichtung::Vorwaerts, true);
    for (; !tabelle.Eof() && equalText(tabelle.Text("DokuBez"), zeile.DokuBez); tabelle.MoveNext()) {
        if (!equalText(tabelle.Text("RevBez"), zeile.RevBez))
            continue;
        if (equalText(tabelle.Text("filename"), zeile.filename))
            return tabelle.AbsolutePosition();
        if (!zweitbeste)
            zweitbeste = tabelle.AbsolutePosition();
    }
    return zweitbeste;
}

} // namespace

Merkzeile merkeZeile(const Tabellenseite& seite)
{
    Merkzeile zeile{seite.record.DokuBez, seite.record.RevBez, seite.record.filename, 0};
    if (!seite.gefiltert() && seite.hatZeilen() && !seite.tabelle.Eof() && !seite.tabelle.Bof())
        zeile.position = seite.tabelle.AbsolutePosition();
    return zeile;
}

void stelleAuf(Recordset& tabelle, const Merkzeile& zeile)
{
    const std::size_t letzte = tabelle.RecordCount() - 1;
    tabelle.setzeAbsolutePosition(findeDokument(tabelle, zeile).value_or(std::min(zeile.position, letzte)));
}

} // namespace quelvarn
