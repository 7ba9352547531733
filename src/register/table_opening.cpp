#include "filter/execution.h"
#include "register/document_page.h"

namespace quelvarn {

void DocumentPage::TabelleNeuLaden(int tab)
{
    tables_.reload(tab);
}

void DocumentPage::liftFilter(int tab)
{
    quelvarn::liftFilter(filter_, tables_, tab);
}

// Once per database: lazily opened tables of another one must not be left over.
void DocumentPage::StartTabelleZeigen()
{
    if (session_.DatenbankPfad == gemerkterPfad_)
        return;
    operations_.perform(Part::Document, "Starttabelle", "Fehler beim Anzeigen der Starttabelle!", [&] {
        vergissDatenbank();
        gemerkterPfad_ = session_.DatenbankPfad;
        session_.FormSEDokuGeladen = true;
        for (const DokuTyp& typ : DOKUTYPEN) {
            if (typ.sondertabelle == 0 && typ.mehrzahl == session_.Starttabelle)
                waehleTab(typ.tab);
        }
    });
}

} // namespace quelvarn
