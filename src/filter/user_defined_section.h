#pragma once

#include "filter/filter_context.h"
#include "filter/property_section.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// Tab 2 of the filter page: user-defined properties, and at most two of Autor, Bearbeiter, Material, Projekt.
class BenutzDefBereich
{
public:
    explicit BenutzDefBereich(Filterkontext& kontext) : kontext_(kontext) {}

    // --- operations ---
    void nameGewaehlt(std::string_view name);              // DLstBenutzDefName
    void wertGewaehlt(std::string_view wert);              // DLstBenutzDefWert: takes name and value as a step
    void zusatzGewaehlt(int index, std::string_view wert); // CbEigenBenutzDef(0) to (3)
    void setzeEmpfaenger(bool gesetzt);                    // ChReceiver: receivers in place of their codes

    // --- mechanisms of the page; faults pass through ---
    bool vorhanden() const; // The type has a table of user-defined properties.
    // Names and the four additional lists; forgets what was chosen. Additional lists that were given up stay empty.
    void fuelleListen();
    void entsperre();
    void sperre(); // A saved filter with additional values: the properties are locked.

    // --- state ---
    const Werteliste& namen() const { return namen_; } // LblAnzEigenBenutzDef
    const std::string& name() const { return name_; }  // LblNaemWert
    const Werteliste& werte() const { return werte_; }
    const Werteliste& zusatz(int index) const { return zusatz_[static_cast<std::size_t>(index)]; }
    bool ChReceiver() const { return ChReceiver_; }
    bool SperreBenutzDef() const { return SperreBenutzDef_; } // True when selection is allowed.

private:
    void fuelleWerte();
    void nimmSchritt(std::string_view wert);
    std::string bezeichnung(int zusatz) const;

    Filterkontext& kontext_;
    Werteliste namen_, werte_;
    std::vector<std::string> kennungen_; // What stands in the table for each of werte_.
    std::array<Werteliste, ANZAHL_ZUSBENUTZDEF> zusatz_;
    std::string name_;
    bool ChReceiver_ = false;
    bool SperreBenutzDef_ = true;
};

} // namespace quelvarn
