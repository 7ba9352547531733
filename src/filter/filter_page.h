#pragma once

#include "filter/filter_context.h"
#include "filter/property_section.h"
#include "filter/structure_section.h"
#include "filter/user_defined_section.h"
#include "session/session_listener.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// State and operations of the filter page (FormSEFiltern).
class FilterPage : public SessionListener
{
public:
    FilterPage(SessionState& session, Operations& operations, FilterState& filter, DocumentTables& tables);

    // --- operations, one for each thing a person can do ---
    void OpenFilterPage();                                      // For the table that the document page shows.
    void sectionChosen(FilterSection section);                  // SSTabDGFilter
    void filter();                                              // "Filtern"
    void back();                                                // "Zurück"
    void leave();                                               // "Verlassen"
    void values();                                              // "Werte"
    void drawingTemplate(bool pressed);                         // "Vorlage"
    bool saveCurrentFilter(std::string_view TxtFilterSave);     // CmFilterSave; true when the name was taken.
    void applySavedFilter(std::string_view CbFilterSave);       // CmFilterUse
    void deleteSavedFilter(std::string_view CbFilterSave);      // CmFilterDelete
    void valueChanged(std::size_t row, std::string_view value); // A Wert of the grid was edited.
    void starsComplete();                                       // CmChangeStar

    // --- for the document page: restores and runs a saved filter of the table shown ---
    void useSaved(std::string_view Filtername);

    // --- what the frame tells ---
    void pageShown(Page page) override;
    void databaseChanges() override;
    void unload() override;

    // --- state, for the projection ---
    PropertySection& properties() { return properties_; }
    StructureSection& structure() { return structure_; }
    UserDefinedSection& userDefined() { return userDefined_; }
    const FilterContext& context() const { return context_; }
    std::string title() const;                    // "    Solid Edge - Filterwerte für Bauteile"
    std::string headingFilterValues() const;      // LblKopfFilterWerte, the grid's head
    std::string accessDateText() const;           // LblZugriffSEFiltern
    std::vector<std::string> savedFilter() const; // CbFilterSave; LblAnzFilterwerte is their number
    bool sectionExists(FilterSection section) const;
    bool showsTemplate() const { return showsTemplate_; }
    // Rises when the lists were read anew: what was picked in them is no longer shown.
    unsigned listGeneration() const { return listGeneration_; }
    DateTime today() const; // Where the calendar opens.

    std::function<void()> toDocumentPage; // The page is left.
    // Shows the template in the viewer, "" for nothing; false when it could not.
    std::function<bool(const std::string& filename)> viewer;

private:
    void CloseFilterPage();
    void perform(std::string_view title, std::string_view text, const std::function<void()>& operation);
    void restoreState();
    void clear();
    void fillSection();
    void fillStructure();
    void followRows();
    void closeTemplate();
    void openTemplate();

    FilterContext context_;
    PropertySection properties_;
    StructureSection structure_;
    UserDefinedSection userDefined_;
    bool loaded_ = false;
    bool userDefinedExists_ = false;
    bool showsTemplate_ = false;
    unsigned listGeneration_ = 0;
};

} // namespace quelvarn
