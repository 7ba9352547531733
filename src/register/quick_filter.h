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
class Schnellsuche;
struct Filterkontext;
struct SessionState;

// The quick filters: narrow the table shown by one or two pieces of text, or by date. They take the place of the
// filter that was there; the status condition stays.
class Schnellfilter
{
public:
    Schnellfilter(SessionState& session, Operations& operations, FilterState& filter, DocumentTables& tables,
                  const Schnellsuche& suche);

    // --- operations ---
    void textFiltern(); // CmDokuDateiFiltern: the text, column and place of the search panel.
    void heute();       // CmHeute
    void letzteTage();  // CmNeu
    void setzeDatumsfeld(int OpErstAend);
    void setzeNurEigene(bool ChAnwender);
    void setzeTage(int SliderTage);
    // Another tab is in front, or its table was built anew.
    void vergissSchritt() { schritte_.clear(); }

    // --- mechanism for the page; faults pass through ---
    // All documents from this day on. False when nothing was filtered: there are no rows, or it was given up.
    bool DatumFiltern(const Zeitpunkt& tag);

    // --- state ---
    static constexpr int MAX_TAGE = 365;
    // Steps of the text filter that runs; 0 when it was lifted or another one has taken its place.
    int schritt() const;
    std::string_view LblFilterStep1() const;
    int OpErstAend() const { return OpErstAend_; } // 0 Erstellt, 1 Geaendert
    bool ChAnwender() const { return ChAnwender_; }
    int SliderTage() const { return SliderTage_; }
    std::string_view LblZeitRaum() const; // "" when no filter by date runs.

private:
    // One by one: a step that leaves nothing is told and left out. Together: they are one condition.
    enum class Run { OneByOne, Together };

    bool wendeAn(std::vector<FilterSchritt> schritte, std::vector<FilterRow> werte, Run run);
    bool laufe(Filterkontext& kontext, const std::vector<FilterSchritt>& schritte, Run run);
    void filtereText();
    void zeigeAb(const Zeitpunkt& tag, std::string_view seit);
    bool laeuft() const;

    SessionState& session_;
    Operations& operations_;
    Ports& ports_;
    FilterState& filter_;
    DocumentTables& tables_;
    const Schnellsuche& suche_;
    // The quick filter that was run last: its tab, and what it put on the table.
    int tab_ = 0;
    std::string filterText_;
    std::vector<FilterSchritt> schritte_; // When it was by text.
    std::string zeitraum_;                // When it was by date.
    int OpErstAend_ = 0;
    bool ChAnwender_ = false;
    int SliderTage_ = 7;
};

} // namespace quelvarn
