#pragma once

#include "filter/filter_context.h"
#include "filter/main_values.h"
#include "filter/value_list.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// A node of TreeViewStrukMerk. Children are read when it is chosen.
struct StructureNode
{
    std::string value;
    std::string statusRow; // "Welle; Anz. 12; " with the number of its children; "" before they are read.
    bool read = false;
    std::vector<StructureNode> children;
};

// The values from level C downwards.
using StructurePath = std::vector<std::string>;

// Tab 1 of the filter page: the tree of the features C to G, Material and Firma of the branch, main values a to g.
// Everything comes from the columns of the open table.
class StructureSection
{
public:
    explicit StructureSection(FilterContext& context) : context_(context), mainValues_(context, StrukturBedingung_) {}
    StructureSection(const StructureSection&) = delete;
    StructureSection& operator=(const StructureSection&) = delete;

    // --- operations ---
    void nodeChosen(const StructurePath& documentPath); // Empty for "Root".
    void materialChosen(std::string_view value);        // CbMaterialMW
    void companyChosen(std::string_view value);         // CbFirmaMW
    // CmHwOK: bounds for the main value chosen, which lock tree, Material and Firma.
    void adoptMainValue(std::string_view CbHW, std::string_view TextBB);

    // --- mechanisms of the page; faults pass through. Reading given up leaves tree and lists as they were ---
    void BaumAufbauen();                                 // Level C; forgets the paths.
    void FilterEigenMWMitFi(std::string_view condition); // Material and Firma of the branch.
    // The area as it is before a choice: tree anew, lists of all rows, unlocked but for main values that are set. For
    // "Zurück", another part or another type; the filter itself is the page's business, and to be emptied before.
    void reset();
    void clearMainValues(); // Button "Werte": bounds only; the locks stay.
    // After `reset`: the branch and the locks as the choice of these steps would have left them.
    void restore(std::span<const FilterStep> steps);

    // --- state ---
    const StructureNode& root() const { return root_; }
    const StructurePath& lastPath() const { return StrukturLetzterPfad_; }
    const std::string& StrukturBedingung() const { return StrukturBedingung_; }
    const ValueList& material() const { return material_; }
    const ValueList& company() const { return company_; }
    MainValues& mainValues() { return mainValues_; }
    const MainValues& mainValues() const { return mainValues_; }
    bool SperreBaum() const { return SperreBaum_; } // Each true when selection is allowed.
    bool SperreMaterial() const { return SperreMaterial_; }
    bool SperreFirma() const { return SperreFirma_; }
    bool SperreHauptwert() const { return SperreHauptwert_; }
    const std::string& drawingTemplate() const { return drawingTemplate_; } // TxtPfadDateiVorlage

private:
    struct Branch; // What a branch shows.
    std::optional<Branch> readBranch(const StructurePath& documentPath);
    void adoptBranch(const StructurePath& documentPath, Branch branch);
    StructureNode* findNode(const StructurePath& documentPath);
    void chooseInBranch(std::string_view Feldname, std::string_view value, bool allowed);
    void tellLocked(std::string_view text);
    Recordset& table() { return context_.table().rows(); }

    FilterContext& context_;
    StructureNode root_;
    StructurePath StrukturLetzterPfad_;
    std::string StrukturBedingung_;
    ValueList material_, company_;
    MainValues mainValues_;
    bool SperreBaum_ = true, SperreMaterial_ = true, SperreFirma_ = true, SperreHauptwert_ = true;
    std::string drawingTemplate_;
};

} // namespace quelvarn
