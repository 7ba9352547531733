#include "filter/filter_page.h"

#include "base/text.h"
#include "base/windows_path.h"
#include "filter/lift_filter.h"
#include "filter/run_filter.h"
#include "filter/saved_filters.h"
#include "filter/steps.h"
#include "platform/clock.h"
#include "session/access_line.h"
#include "session/error_report.h"

#include <algorithm>
#include <fmt/format.h>
#include <iterator>

namespace quelvarn {

FilterPage::FilterPage(SessionState& session, Operations& operations, FilterState& filter, DocumentTables& tables)
    : context_{session, operations, filter, tables}, properties_(context_), structure_(context_), userDefined_(context_)
{}

void FilterPage::perform(std::string_view title, std::string_view text, const std::function<void()>& operation)
{
    context_.operations.perform(Part::FilterPage, title, text, operation);
}

// --- opening and closing ---------------------------------------------------------------------------------------

void FilterPage::pageShown(Page page)
{
    if (page == Page::Filter)
        OpenFilterPage();
}

void FilterPage::OpenFilterPage()
{
    perform("Laden der Form 'SEFiltern'", "Fehler beim Laden der Form 'SEFiltern'!", [&] {
        loaded_ = context_.session.pages.FormSEFilternGeladen = true;
        context_.tab = context_.tables.tab();
        // The steps of a quick filter do not belong here.
        if (!context_.table().narrowing().quickFilter.empty())
            ResetAllFilters(context_);
        userDefinedExists_ = userDefined_.exists();
        if (!sectionExists(context_.section()))
            clear();
        SaveFilterState(context_.state());
        fillSection();
    });
}

void FilterPage::CloseFilterPage()
{
    if (!loaded_)
        return;
    saveFilterLists(context_.session, context_.ports().boxes);
    closeTemplate();
}

void FilterPage::leave()
{
    CloseFilterPage();
    context_.operations.changed(Part::FilterPage);
    if (toDocumentPage)
        toDocumentPage();
}

void FilterPage::unload()
{
    CloseFilterPage();
    loaded_ = context_.session.pages.FormSEFilternGeladen = false;
}

// Saved filters go to the database that they are from, which is still open.
void FilterPage::databaseChanges()
{
    unload();
    context_.filter = {};
    context_.tab = 0;
    context_.operations.changed(Part::FilterPage);
}

// --- the state of a type ---------------------------------------------------------------------------------------

void FilterPage::clear()
{
    clearFilter(context_.state());
}

// A marker that all steps are filled does not come back: what was collected can be run.
void FilterPage::restoreState()
{
    TypeFilter& state = context_.state();
    if (state.GesicherterFilter.section != state.section)
        return clear(); // It was made on another part of the page; the parts do not mix.
    RestoreFilterState(state);
    state.FilterAnzahl = static_cast<int>(filledSteps(state).size());
}

// --- the part of the page in front -----------------------------------------------------------------------------

void FilterPage::sectionChosen(FilterSection section)
{
    if (section == context_.section() || !sectionExists(section))
        return;
    perform("Wechsel der Filterbereiche", "Fehler beim Wechsel der Filterbereiche!", [&] {
        clear();
        context_.state().section = section;
        fillSection();
    });
}

void FilterPage::fillSection()
{
    ++listGeneration_;
    switch (context_.section()) {
    case FilterSection::Properties:
        return properties_.FilterListenSchmal(context_.state().FilterString);
    case FilterSection::Structure:
        return fillStructure();
    case FilterSection::UserDefined:
        userDefined_.unlock();
        userDefined_.fillLists();
        if (context_.state().BenutzDefAnzahl() > 0)
            userDefined_.lock();
    }
}

// The tree as the steps of the type have walked it.
void FilterPage::fillStructure()
{
    structure_.reset();
    if (const auto steps = filledSteps(context_.state()); !steps.empty())
        structure_.restore(steps);
}

void FilterPage::filter()
{
    perform("Fehler beim Filtern nach Standard", "Fehler beim Filtern nach Standard!", [&] {
        FilterEigenMerkBenutzDef(context_);
        if (context_.section() == FilterSection::Properties)
            fillSection();
    });
}

void FilterPage::back()
{
    perform("Zurücksetzen der Filterwerte", "Fehler beim Zurücksetzen der Filterwerte!", [&] {
        if (context_.section() == FilterSection::Properties)
            restoreState();
        else
            clear();
        fillSection();
    });
}

void FilterPage::values()
{
    perform("Zurücksetzen der Hauptwerte", "Fehler beim Zurücksetzen der Hauptwerte!",
            [&] { structure_.clearMainValues(); });
}

// --- the template ----------------------------------------------------------------------------------------------

void FilterPage::drawingTemplate(bool pressed)
{
    if (pressed)
        openTemplate();
    else
        closeTemplate();
    context_.operations.changed(Part::FilterPage);
}

void FilterPage::openTemplate()
{
    const std::string documentPath = structure_.drawingTemplate();
    showsTemplate_ = extensionOf(documentPath) == "dft" && viewer && viewer(documentPath);
    if (showsTemplate_)
        return;
    context_.ports().boxes.warn("Anzeigen im Viewer", lines({
                                                          "Die Datei:",
                                                          "",
                                                          documentPath,
                                                          "",
                                                          "konnte nicht geöffnet werden!",
                                                          "",
                                                          "Mögliche Ursache:",
                                                          "- Kein Zugriffsrecht.",
                                                          "- Falscher Pfad- und/oder Dateiname.",
                                                      }));
}

void FilterPage::closeTemplate()
{
    if (showsTemplate_ && viewer)
        viewer("");
    showsTemplate_ = false;
}

// --- saved filters and edited values ---------------------------------------------------------------------------

bool FilterPage::saveCurrentFilter(std::string_view TxtFilterSave)
{
    bool saved = false;
    perform("Filterwerte", "Fehler beim Speichern der Filterwerte!",
            [&] { saved = saveFilter(context_, TxtFilterSave); });
    return saved;
}

void FilterPage::deleteSavedFilter(std::string_view CbFilterSave)
{
    perform("Filterwerte", "Fehler beim Löschen der Filterwerte!", [&] { removeFilter(context_, CbFilterSave); });
}

void FilterPage::applySavedFilter(std::string_view CbFilterSave)
{
    perform("Filterwerte", "Fehler beim Verwenden der Filterwerte!", [&] {
        const auto text = chosenFilter(context_, CbFilterSave);
        if (!text)
            return;
        UseSavedFilter(context_, *text);
        if (!sectionExists(context_.section()))
            return clear();
        fillSection();
    });
}

void FilterPage::useSaved(std::string_view Filtername)
{
    perform("Filterfavoriten", "Fehler beim Filtern nach Standard!", [&] {
        context_.tab = context_.tables.tab();
        const std::string text = SavedFilterString(context_.session.pages, context_.tab, Filtername);
        if (text.empty())
            return;
        UseSavedFilter(context_, text);
        FilterEigenMerkBenutzDef(context_);
    });
}

void FilterPage::valueChanged(std::size_t row, std::string_view value)
{
    perform("Filterwerte", "Fehler beim Ändern der Filterwerte!", [&] {
        if (row >= context_.FilterWerteTabelle().size())
            return; // The row is gone.
        if (setRowValue(context_.state(), row, value))
            return followRows();
        context_.ports().boxes.warn("Filterwerte", trim(value).empty() ? "Es muss ein Filterwert angegeben werden!"
                                                                       : fmt::format("'{}' ist kein Datum!", value));
    });
}

void FilterPage::starsComplete()
{
    perform("Filterwerte", "Fehler beim Ändern der Filterwerte!", [&] {
        completeStars(context_);
        followRows();
    });
}

// The lists of the structure features are those of the branch as it reads now.
void FilterPage::followRows()
{
    if (context_.section() == FilterSection::Structure)
        fillStructure();
}

// --- for the projection ----------------------------------------------------------------------------------------

std::string FilterPage::title() const
{
    constexpr int ASSEMBLY = 2, DRAWING = 3; // These two stand in the singular.
    const int tab = context_.tab;
    const bool singular = tab == ASSEMBLY || tab == DRAWING;
    return fmt::format("    Solid Edge - Filterwerte für {}",
                       singular ? context_.session.labels.singular(tab) : context_.session.labels.plural(tab));
}

std::string FilterPage::headingFilterValues() const
{
    return context_.section() == FilterSection::UserDefined
               ? "      Filterwerte ( * am Anfang u. Ende/oder nur am Ende)"
               : "      Filterwerte";
}

std::string FilterPage::accessDateText() const
{
    const Rights& rights = context_.session.rights;
    if (rights.seesAllStatuses())
        return accessLine(rights);
    std::string text = "Berechtigung:"; // No short form for a single status, unlike the document page.
    for (std::size_t status = 0; status < STATUS.size(); ++status)
        if (rights.Sichtbar[status] == 1)
            text += STATUS[status].shortText;
    return text;
}

std::vector<std::string> FilterPage::savedFilter() const
{
    return savedNames(context_.session.pages, context_.tab);
}

bool FilterPage::sectionExists(FilterSection section) const
{
    return section != FilterSection::UserDefined || userDefinedExists_;
}

DateTime FilterPage::today() const
{
    return context_.ports().clock.now();
}

} // namespace quelvarn
