#pragma once

#include "base/date_time.h"
#include "filter/filter_state.h"
#include "session/operations.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

class DocumentTables;
class QuickSearch;
struct FilterContext;
struct SessionState;

// The quick filters: narrow the table shown by one or two pieces of text, or by date. They take the place of the
// filter that was there; the status condition stays.
class QuickFilter
{
public:
    QuickFilter(SessionState& session, Operations& operations, FilterState& filter, DocumentTables& tables,
                const QuickSearch& search);

    // --- operations ---
    void textFilter(); // CmDokuDateiFiltern: the text, column and place of the search panel.
    void today();      // CmHeute
    void lastDays();   // CmNeu
    void setDateField(int OpErstAend);
    void setOwnOnly(bool ChAnwender);
    void setDays(int SliderTage);
    // Another tab is in front, or its table was built anew.
    void forgetStep() { steps_.clear(); }

    // --- mechanism for the page; faults pass through ---
    // All documents from this day on. False when nothing was filtered: there are no rows, or it was given up.
    bool DatumFiltern(const DateTime& day);

    // --- state ---
    static constexpr int MAX_DAYS = 365;
    // Steps of the text filter that runs; 0 when it was lifted or another one has taken its place.
    int step() const;
    std::string_view LblFilterStep1() const;
    int OpErstAend() const { return OpErstAend_; } // 0 Erstellt, 1 Geaendert
    bool ChAnwender() const { return ChAnwender_; }
    int SliderTage() const { return SliderTage_; }
    std::string_view LblZeitRaum() const; // "" when no filter by date runs.

private:
    // One by one: a step that leaves nothing is told and left out. Together: they are one condition.
    enum class Run { OneByOne, Together };

    bool apply(std::vector<FilterStep> steps, std::vector<FilterRow> values, Run run);
    bool runSteps(FilterContext& context, const std::vector<FilterStep>& steps, Run run);
    void filterText();
    void showFrom(const DateTime& day, std::string_view since);
    bool runs() const;

    SessionState& session_;
    Operations& operations_;
    Ports& ports_;
    FilterState& filter_;
    DocumentTables& tables_;
    const QuickSearch& search_;
    // The quick filter that was run last: its tab, and what it put on the table.
    int tab_ = 0;
    std::string filterText_;
    std::vector<FilterStep> steps_; // When it was by text.
    std::string period_;            // When it was by date.
    int OpErstAend_ = 0;
    bool ChAnwender_ = false;
    int SliderTage_ = 7;
};

} // namespace quelvarn
