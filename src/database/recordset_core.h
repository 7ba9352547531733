#pragma once

#include "base/runtime_error.h"
#include "database/filter_evaluator.h"
#include "database/recordset.h"
#include "database/recordset_cells.h"
#include "database/recordset_sort.h"
#include "database/row_store.h"
#include "database/row_view.h"
#include "database/sql/ast.h"

#include <optional>
#include <string>
#include <vector>

namespace quelvarn {

// A row that is being changed, or a new one: the values set so far, by field.
struct Bearbeitung
{
    bool neu = false;
    std::vector<std::optional<Value>> werte;
};

// A change that waits for UpdateBatch.
struct WartendeAenderung
{
    enum class Art { Neu, Geaendert, Geloescht } art;
    Zeilennummer zeile;
    std::vector<sql::Zuweisung> werte;
};

// What a recordset holds: its rows, the view of them, the place of the cursor and what is not yet written.
struct Recordset::Kern
{
    // --- recordset.cpp ---
    void verlangeOffen() const;
    bool aufZeile() const { return position >= 0 && position < static_cast<std::ptrdiff_t>(ansicht.anzahl()); }
    // Throws Laufzeitfehler 3021 where there is no current row.
    std::size_t aktuellePosition() const;
    Zeilennummer aktuelleZeile() const { return ansicht.zeile(aktuellePosition()); }
    Value feldwert(std::size_t feld) const;
    void geheZu(std::ptrdiff_t neuePosition);

    // --- recordset_edit.cpp ---
    void verlangeSchreibbar() const;
    bool stapel() const { return zeilen.engine() && sperre == SperrTyp::Stapel; }
    // Writes what is being changed, as every move of the cursor does.
    void beendeBearbeitung();
    void schreibeNeue(const Bearbeitung& neue);
    void schreibeGeaenderte(const Bearbeitung& geaenderte);
    std::vector<sql::Zuweisung> zuweisungen(const Bearbeitung& quelle) const;
    void uebernimm(Zeilennummer zeile, const Bearbeitung& quelle);
    void fuehreAus(const WartendeAenderung& aenderung);

    // --- recordset_find.cpp ---
    // All rows that were not deleted, in the present order.
    std::vector<Zeilennummer> alleZeilen() const;
    // Puts them in the order of these fields, or of the opening, and hands them out.
    std::vector<Zeilennummer> setzeOrdnung(const std::vector<Sortierfeld>& felder);
    void zeigeAlle();
    void zeige(std::vector<Zeilennummer> gefundene);
    // Over columns in memory.
    std::unique_ptr<Auswahl> baueAuswahlVon(const sql::Ausdruck& ausdruck) const;
    // All rows that meet the filter, in the present order; nothing when the progress was given up.
    std::optional<std::vector<Zeilennummer>> choose(const RowFilter& filter, const Fortschritt& fortschritt);
    // False when the progress was given up.
    bool ladeGenannte(std::span<const SharedCondition> conditions, const Fortschritt& fortschritt);
    // The first row of the view, from `ab` on, that is chosen.
    std::optional<std::ptrdiff_t> findePosition(Auswahl& auswahl, std::ptrdiff_t ab, bool vorwaerts) const;

    bool offen = false;
    SperrTyp sperre = SperrTyp::NurLesen;
    Zeilenspeicher zeilen;
    Ansicht ansicht;
    std::ptrdiff_t position = 0; // -1: Bof; behind the last one: Eof
    mutable Zellenpuffer puffer;

    RowFilter filter;
    std::vector<Zeilennummer> geloescht; // ascending
    bool sortiert = false;
    std::vector<Zeilennummer> ordnung; // All rows not deleted, when sorted.

    std::optional<Bearbeitung> bearbeitung;
    std::vector<WartendeAenderung> wartende;
    std::size_t klein = 2048; // Results up to this many rows are read whole.
};

// A fault of a recordset, told in German.
Laufzeitfehler recordsetFehler(int nummer, const std::string& beschreibung);

} // namespace quelvarn
