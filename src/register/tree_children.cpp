#include "database/document_types.h"
#include "register/relations.h"
#include "register/tree_builder.h"
#include "session/session_state.h"

#include <numeric>

namespace quelvarn {
namespace {

// Values that cancel to zero count as none, and only the first three features count.
bool hatHauptmerkmale(const DokuRecord& record)
{
    const double summe = std::accumulate(record.Hauptwert.begin(), record.Hauptwert.end(), 0.0);
    return summe != 0 || !record.Hauptmerkmal[0].empty() || !record.Hauptmerkmal[1].empty() ||
           !record.Hauptmerkmal[2].empty();
}

} // namespace

void BaumBauer::KinderAufbauen()
{
    if (seite_.baum.BaumAufgebaut || seite_.baum.wurzeln.empty())
        return;
    seite_.baum.BaumAufgebaut = true;
    const DokuRecord& record = seite_.record;
    const Baumschalter& schalter = session_.Tree;
    const bool dateityp = typ_.sondertabelle == 0;

    if (schalter.HauptMerk && hatHauptmerkmale(record))
        fuegeKindAn(knoten::HAUPTMERKMALE);
    if (schalter.BenutzDef || (schalter.Versendet && dateityp)) {
        const Benutzerzeilen zeilen = benutzerzeilen(session_.Verbindung, typ_.tabelleBenutzDef, record);
        if (schalter.BenutzDef && zeilen.eigenschaften)
            fuegeKindAn(knoten::BENUTZDEF);
        if (schalter.Versendet && dateityp && zeilen.versendet)
            fuegeKindAn(knoten::VERSENDET);
    }
    if (schalter.StichKomm && !(record.Stichwoerter.empty() && record.Kommentar.empty()))
        fuegeKindAn(knoten::STICHKOMM);
    if (schalter.ZusDoku && dateityp && hatZusatzdokumente(session_.Verbindung, record.filename))
        fuegeKindAn(knoten::ZUSDOKU);
}

} // namespace quelvarn
