#pragma once

#include "base/date_time.h"
#include "database/document_types.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quelvarn::sample {

struct Baugruppe;
struct Maschine;

enum class Bereich : std::uint8_t { Foerderanlage, Getriebe, Rahmen, Norm, Kauf, Vorrichtung, Vorlage };

// The five file types and what lies in the special tables; the numbers are those of DOKUTYPEN.
enum class Tab : std::uint8_t { Part, SheetM, Assemb, Draft, Weld, STbl1, STbl2, STbl3 };

constexpr std::uint32_t KEINES = 0xFFFFFFFF;
// More than a send order takes from one drawing.
constexpr std::size_t MODELLE_DER_UEBERSICHT = 103;

// A numbered item of the register, with all its revisions. Everything else about it follows from these few
// bytes and the start number, so a million documents need little memory.
struct Teil
{
    std::uint32_t projekt = 0;     // Of its kind; for standard and bought parts the place in their catalog.
    std::uint32_t eltern = KEINES; // The assembly it belongs to; for a drawing or weldment its model.
    std::uint16_t nummer = 0;      // Inside the project: 321 is the first part of sub-assembly 320.
    std::uint8_t bauform = 0;      // Which one, in its list of the vocabulary.
    Bereich bereich = Bereich::Foerderanlage;
    Tab tab = Tab::Part;
    std::uint8_t revisionen = 1;
};

// The items of a register, so many that there is exactly the wanted number of documents (revisions).
// Models stand before their drawings, assemblies before their parts.
class Plan
{
public:
    Plan(std::uint64_t dokumente, std::uint64_t start);

    const std::vector<Teil>& teile() const { return teile_; }
    const Teil& teil(std::uint32_t nummer) const { return teile_[nummer]; }
    std::uint64_t start() const { return start_; }
    const Maschine& maschine(Bereich bereich, std::uint32_t projekt) const;
    // Items of the special tables, and the gearboxes that conveyors are driven by.
    const std::vector<std::uint32_t>& normteile() const { return normteile_; }
    const std::vector<std::uint32_t>& kaufteile() const { return kaufteile_; }
    const std::vector<std::uint32_t>& getriebe() const { return getriebe_; }

private:
    bool voll() const { return frei_ == 0; }
    std::uint32_t fuegeAn(Teil teil);
    void planeVorlagen(std::uint64_t anzahl);
    void planeNormteile(std::uint64_t anzahl);
    void planeKaufteile(std::uint64_t anzahl);
    void planeVorrichtungen(std::uint64_t anzahl);
    void planeProjekt(Bereich bereich, std::uint32_t projekt);
    void planeUnterbaugruppe(const Teil& gruppe, std::uint32_t eltern, int nummer, const Baugruppe& vorlage);
    std::uint32_t planeModell(Teil teil, std::uint32_t mitZeichnung);
    void planeZeichnung(std::uint32_t modell, std::uint32_t wahrscheinlichkeit);
    std::uint8_t wuerfleRevisionen(std::uint32_t nummer) const;

    std::uint64_t start_;
    std::uint64_t frei_; // Documents still wanted.
    std::vector<Teil> teile_;
    std::vector<std::uint32_t> normteile_;
    std::vector<std::uint32_t> kaufteile_;
    std::vector<std::uint32_t> getriebe_;
};

// What the catalog of standard parts holds, and its parts by number.
struct Normteil
{
    std::size_t reihe = 0;
    std::string_view groesse;
    std::string_view laenge;
    std::string_view ausfuehrung;
    bool ersteAusfuehrung = true;
};
std::uint64_t anzahlNormteile();
Normteil normteil(std::uint64_t nummer);

} // namespace quelvarn::sample
