#pragma once

#include "filter/filter_context.h"
#include "filter/property_area.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// A node of TreeViewStrukMerk. Children are read when it is chosen.
struct Strukturknoten
{
    std::string wert;
    std::string statuszeile; // "Welle; Anz. 12; "
    bool gelesen = false;
    std::vector<Strukturknoten> kinder;
};

// Tab 1 of the filter page: the tree of the features C to G, Material and Firma of the branch, main values a to g.
class Strukturbereich
{
public:
    explicit Strukturbereich(Filterkontext& kontext) : kontext_(kontext) {}

    // --- operations ---
    // The values from level C down to the node clicked; empty for "Root".
    void knotenGewaehlt(const std::vector<std::string>& pfad);
    void materialGewaehlt(std::string_view wert); // CbMaterialMW
    void firmaGewaehlt(std::string_view wert);    // CbFirmaMW
    void hauptwertGewaehlt(int hauptwert);        // Label a (0) to g (6): whose lists are shown
    void setzeAnzahlWerteZeigen(bool gesetzt);    // ChShowAnzWerte
    void setzeAnzahlAliasZeigen(bool gesetzt);    // ChShowAnzAlias
    void hauptwertUebernehmen(std::string_view CbHW, std::string_view TextBB); // CmHwOK

    // --- mechanisms of the page; faults pass through ---
    void BaumAufbauen();                                 // Level C; forgets the paths.
    void FilterEigenMWMitFi(std::string_view bedingung); // Material and Firma of the branch.
    void zuruecksetzen();                                // Button "Zurück": everything unlocked, tree anew.
    void leereHauptwerte();                              // Button "Werte": bounds only; the locks stay.
    // A saved filter: the branch and the locks as the choices would have left them.
    void stelleWiederHer(const std::vector<std::string>& pfad, std::string_view material, std::string_view firma);

    // --- state ---
    const Strukturknoten& wurzel() const { return wurzel_; }
    const std::vector<std::string>& letzterPfad() const { return StrukturLetzterPfad_; }
    const std::string& StrukturBedingung() const { return StrukturBedingung_; }
    const Werteliste& material() const { return material_; }
    const Werteliste& firma() const { return firma_; }
    int hauptwert() const { return hauptwert_; }
    const Werteliste& werte() const { return werte_; } // CbHW, LblAnzWert
    const Werteliste& alias() const { return alias_; } // LstHW, LblAnzAlias
    bool zeigtAnzahlWerte() const { return ChShowAnzWerte_; }
    bool zeigtAnzahlAlias() const { return ChShowAnzAlias_; }
    // LblHWa and Lbl_hwa: name of the value, and its band "10 - 12" or "" .
    std::string hauptwertName(int hauptwert) const;
    std::string hauptwertBand(int hauptwert) const;
    bool SperreBaum() const { return SperreBaum_; } // Each true when selection is allowed.
    bool SperreMaterial() const { return SperreMaterial_; }
    bool SperreFirma() const { return SperreFirma_; }
    bool SperreHauptwert() const { return SperreHauptwert_; }
    const std::string& vorlage() const { return vorlage_; } // TxtPfadDateiVorlage

private:
    Filterkontext& kontext_;
    Strukturknoten wurzel_;
    std::vector<std::string> StrukturLetzterPfad_;
    std::string StrukturBedingung_;
    Werteliste material_, firma_, werte_, alias_;
    int hauptwert_ = 0;
    bool ChShowAnzWerte_ = true;
    bool ChShowAnzAlias_ = true;
    bool SperreBaum_ = true, SperreMaterial_ = true, SperreFirma_ = true, SperreHauptwert_ = true;
    std::string vorlage_;
};

} // namespace quelvarn
