#pragma once

#include "database/column_loader.h"
#include "database/engine.h"

#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace quelvarn {

// How a recordset is opened.
struct Oeffnung
{
    bool schreibbar = false;
    bool ganzLesen = false; // All columns at once, however many rows there are.
    std::size_t klein = 0;  // So many rows are read whole.
};

// The rows of a recordset: their keys, the columns in memory, and the way to the others.
class Zeilenspeicher
{
public:
    // Of a recordset in memory; every column is there from the start.
    void haengeFeldAn(Spalte feld);
    void leere();
    void oeffne(std::shared_ptr<Engine> engine, sql::Select abfrage, const Oeffnung& oeffnung);

    // Rows of one table by their keys.
    void oeffneZeilen(std::shared_ptr<Engine> engine, std::string_view tabelle,
                      std::vector<Zeilenschluessel> schluessel, std::size_t klein);

    const std::vector<Spalte>& felder() const { return felder_; }
    std::optional<std::size_t> findeFeld(std::string_view name) const; // In any case.
    // Throws Laufzeitfehler 3265 when there is none.
    std::size_t feldVon(std::string_view name) const;

    std::size_t anzahl() const { return anzahl_; }
    bool geladen(std::size_t feld) const { return spalten_[feld] != nullptr; }
    const Column& spalte(std::size_t feld) const { return *spalten_[feld]; }
    // Reads whole columns, all in one pass. False when the progress was given up; then none is there.
    bool lade(std::span<const std::size_t> felder, const Fortschritt& fortschritt);
    // Cells of columns that are not in memory: for each row the fields in their order, Null for a row that is gone.
    std::vector<Value> leseZellen(std::span<const Zeilennummer> zeilen, std::span<const std::size_t> felder) const;

    // nullptr for a recordset in memory.
    Engine* engine() const { return engine_.get(); }
    const std::string& tabelle() const { return abfrage_.tabelle; }
    bool hatSchluessel() const { return hatSchluessel_; }
    Zeilenschluessel schluessel(Zeilennummer zeile) const { return schluessel_[zeile]; }
    // Rows with smaller numbers were stored earlier.
    Zeilenschluessel reihenfolge(Zeilennummer zeile) const { return hatSchluessel_ ? schluessel_[zeile] : zeile; }
    void setzeSchluessel(Zeilennummer zeile, Zeilenschluessel schluessel) { schluessel_[zeile] = schluessel; }

    // What the recordset itself changed. These touch only memory.
    Zeilennummer haengeZeileAn();
    void setze(Zeilennummer zeile, std::size_t feld, const Value& wert);

    std::size_t speicher() const;

private:
    bool leseGanz(std::size_t hoechstens, Doppelsuche* doppelte);
    void leseSchluessel();
    void ordneNeu();
    std::unique_ptr<Zeilenleser> leseUnsortiert(std::span<const std::size_t> felder);
    void setzeEigene(Spaltenliste& spalten, std::span<const std::size_t> felder);
    std::vector<std::string> namen(std::span<const std::size_t> felder) const;

    std::shared_ptr<Engine> engine_;
    sql::Select abfrage_;
    std::vector<Spalte> felder_;
    Spaltenliste spalten_; // nullptr: not in memory
    std::vector<Zeilenschluessel> schluessel_;
    bool hatSchluessel_ = false;
    std::size_t anzahl_ = 0;
    std::vector<Zeilennummer> eigene_; // Rows changed or added here.
};

} // namespace quelvarn
