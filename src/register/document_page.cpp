#include "register/document_page.h"

namespace quelvarn {

DocumentPage::DocumentPage(SessionState& session, Operations& operations, DocumentTables& tables, FilterState& filter,
                           GezeigteDateien& gezeigt)
    : session_(session), operations_(operations), ports_(operations.ports()), gezeigt_(gezeigt), tables_(tables),
      filter_(filter), details_(session, operations), verwendung_(session, operations, gezeigt, *this)
{
    tables_.rowsReplaced = [this](int tab) {
        if (tab == tables_.tab())
            zeigeZeilen();
        operations_.changed(Part::Document);
    };
}

std::string DocumentPage::anzahlText() const
{
    if (!table().isOpen())
        return {};
    std::string text =
        "  Solid Edge - Dokumente, " + session_.mehrzahl(tab()) + ", Anzahl: " + std::to_string(table().count());
    const bool quickfilter = !table().narrowing().quickFilter.empty() && table().rows().RecordCount() > 0;
    if (!gezeigteWerte().empty() || quickfilter)
        text += "; Filteranzahl: " + std::to_string(table().visible().RecordCount());
    return text;
}

std::string DocumentPage::zugriffText() const
{
    return statusLimited() ? table().narrowing().statusLimit.legende : zugriffstext(session_);
}

std::vector<FilterRow> DocumentPage::gezeigteWerte() const
{
    std::vector<FilterRow> werte = table().narrowing().values;
    if (statusLimited())
        werte.push_back(table().narrowing().statusLimit.row());
    return werte;
}

std::string DocumentPage::infoKopf() const
{
    return "  Eigenschaften " + session_.einzahl(tab());
}

bool DocumentPage::filterKnopf() const
{
    return table().state() == TableState::Filtered || table().state() == TableState::NewerData;
}

std::string_view DocumentPage::zurueckTooltip() const
{
    return filterKnopf() ? "Filterung aufheben, alle Dokumente anzeigen" : "Zum Anfang der Tabelle";
}

} // namespace quelvarn
