#pragma once

#include "filter/filter_context.h"
#include "filter/value_list.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// A node of TreeViewStrukMerk. Children are read when it is chosen.
struct Strukturknoten
{
    std::string wert;
    std::string statuszeile; // "Welle; Anz. 12; " with the number of its children; "" before they are read.
    bool gelesen = false;
    std::vector<Strukturknoten> kinder;
};

// The values from level C downwards.
using Strukturpfad = std::vector<std::string>;

// Tab 1 of the filter page: the tree of the features C to G, Material and Firma of the branch, main values a to g.
// Everything comes from the columns of the open table.
class Strukturbereich
{
public:
    explicit Strukturbereich(Filterkontext& kontext) : kontext_(kontext) {}

    // --- operations ---
    void knotenGewaehlt(const Strukturpfad& pfad); // Empty for "Root".
    void materialGewaehlt(std::string_view wert);  // CbMaterialMW
    void firmaGewaehlt(std::string_view wert);     // CbFirmaMW
    void hauptwertGewaehlt(int hauptwert);         // Label a (0) to g (6): whose lists are shown
    void setzeAnzahlWerteZeigen(bool gesetzt);     // ChShowAnzWerte; without it there is no list of values either.
    void setzeAnzahlAliasZeigen(bool gesetzt);     // ChShowAnzAlias
    void hauptwertUebernehmen(std::string_view CbHW, std::string_view TextBB); // CmHwOK

    // --- mechanisms of the page; faults pass through. Reading given up leaves tree and lists as they were ---
    void BaumAufbauen();                                 // Level C; forgets the paths.
    void FilterEigenMWMitFi(std::string_view bedingung); // Material and Firma of the branch.
    // The area as it is before a choice: tree anew, lists of all rows, unlocked but for main values that are set. For
    // "Zurück", another part or another type; the filter itself is the page's business, and to be emptied before.
    void zuruecksetzen();
    void leereHauptwerte(); // Button "Werte": bounds only; the locks stay.
    // After `zuruecksetzen`: the branch and the locks as the choice of these steps would have left them.
    void stelleWiederHer(std::span<const FilterSchritt> steps);

    // --- state ---
    const Strukturknoten& wurzel() const { return wurzel_; }
    const Strukturpfad& letzterPfad() const { return StrukturLetzterPfad_; }
    const std::string& StrukturBedingung() const { return StrukturBedingung_; }
    const Werteliste& material() const { return material_; }
    const Werteliste& firma() const { return firma_; }
    int hauptwert() const { return hauptwert_; }
    const Werteliste& werte() const { return werte_; } // CbHW, LblAnzWert
    const Werteliste& alias() const { return alias_; } // LstHW, LblAnzAlias
    bool zeigtAnzahlWerte() const { return ChShowAnzWerte_; }
    bool zeigtAnzahlAlias() const { return ChShowAnzAlias_; }
    // LblHWa and Lbl_hwa: name of the value, and its band "10 - 12", "10" for a band of 0, "" for none.
    std::string hauptwertName(int hauptwert) const;
    std::string hauptwertBand(int hauptwert) const;
    bool SperreBaum() const { return SperreBaum_; } // Each true when selection is allowed.
    bool SperreMaterial() const { return SperreMaterial_; }
    bool SperreFirma() const { return SperreFirma_; }
    bool SperreHauptwert() const { return SperreHauptwert_; }
    const std::string& vorlage() const { return vorlage_; } // TxtPfadDateiVorlage

private:
    struct Zweig; // What a branch shows.
    std::optional<Zweig> leseZweig(const Strukturpfad& pfad);
    void uebernimmZweig(const Strukturpfad& pfad, Zweig zweig);
    Strukturknoten* findeKnoten(const Strukturpfad& pfad);
    void waehleImZweig(std::string_view Feldname, std::string_view wert, bool erlaubt);
    void fuelleHauptwerte();
    void meldeGesperrt(std::string_view text);
    Recordset& tabelle() { return kontext_.table().rows(); }

    Filterkontext& kontext_;
    Strukturknoten wurzel_;
    Strukturpfad StrukturLetzterPfad_;
    std::string StrukturBedingung_;
    Werteliste material_, firma_, werte_, alias_;
    int hauptwert_ = 0;
    bool ChShowAnzWerte_ = true;
    bool ChShowAnzAlias_ = true;
    bool SperreBaum_ = true, SperreMaterial_ = true, SperreFirma_ = true, SperreHauptwert_ = true;
    std::string vorlage_;
};

} // namespace quelvarn
