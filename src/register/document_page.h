#pragma once

#include "database/document_types.h"
#include "documents/document_tables.h"
#include "filter/filter_state.h"
#include "platform/ports.h"
#include "register/detail_pages.h"
#include "register/document_facts.h"
#include "register/info_pages.h"
#include "register/property_tree.h"
#include "register/usage_page.h"
#include "session/main_window.h"
#include "session/operations.h"
#include "session/session_state.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

class GezeigteDateien;
enum class Ansicht : int;

// State and operations of the document page (FormSEDoku). Follows the frame once it is registered there.
class DocumentPage : public Rahmenteilnehmer
{
public:
    DocumentPage(SessionState& session, Operations& operations, DocumentTables& tables, FilterState& filter,
                 GezeigteDateien& gezeigt);

    // --- operations, one for each thing a person can do ---
    // Runs when the page is shown; does its work once per database.
    void StartTabelleZeigen();
    void tabGewaehlt(int tab);
    // A grid row was clicked or became current: its position among the rows shown.
    void zeileGewaehlt(std::size_t position);
    // One row down; behind the last one comes the first.
    void zeileVor();
    // A search moved the row of this tab; from Eof it goes back to the first row.
    void zeileGewechselt();
    // Opens the table anew without a filter and stays on the document.
    void neuaufbauen();
    void knotenGewaehlt(std::string_view text);
    void knotenAufgeklappt();
    void knotenZugeklappt();
    // Button 8 of ToolbarSEDok2: lifts a filter, or goes to the first row.
    void zurueck();
    // "Anschauen" of ToolbarSEDokTop: the viewer page with the document in place of the tables, and back.
    void anschauen(bool an);
    void zeigeVorlage(); // CmViewVorlage
    // ChDatReadOnly and ChDatArchiv of the file properties page.
    void setzeSchreibschutz(bool gesetzt);
    void setzeArchiv(bool gesetzt);
    // The page closes: writes the Suchen/Filtern, Starttabelle and OfflineDaten rows.
    void schliessen();

    // --- what the frame tells ---
    void seiteGezeigt(Seite seite) override;
    void datenbankWechselt() override;
    void baumschalterGeaendert() override;
    void entladen() override { schliessen(); }

    // --- mechanisms for other pages and operations; faults pass through ---
    void TabelleNeuLaden(int tab);
    void TabelleWechseln();
    void ZeileAktualisieren(int tab);
    void waehleTab(int tab);
    // Shows this table, opened anew without a filter, at the document that was current in it.
    void baueNeuAuf(int tab);
    // The status bar tells of a related document instead of the current one.
    void zeigeDateiUnten(const std::string& filename);

    // The viewer page (FrmDokuSmartView_SmartView) with any document; false after its box.
    bool zeigeImViewer(const std::string& filename);
    void verlasseViewer();

    // All rows of this table again.
    void liftFilter(int tab);

    // --- state, for the projection ---
    int tab() const { return tables_.tab(); }
    DocumentTables& tables() { return tables_; }
    // The table in front.
    DocumentTable& table() { return tables_.current(); }
    const DocumentTable& table() const { return tables_.current(); }
    const Eigenschaftsbaum& tree(int tab) const { return trees_[static_cast<std::size_t>(tab)]; }
    const Eigenschaftsbaum& tree() const { return tree(tab()); }
    std::string anzahlText() const;  // LabelSEDoku
    std::string zugriffText() const; // LblZugriffSEDoku: the limit of the statuses, or what the user may see
    bool statusLimited() const { return table().narrowing().statusLimit.isSet(); }
    std::vector<FilterRow> gezeigteWerte() const; // What filters the table shown, its status limit behind.
    std::string infoKopf() const;                 // LblInfo head: "  Eigenschaften Bauteil"
    bool filterKnopf() const;                     // Button 8 shows the filter image.
    std::string_view zurueckTooltip() const;
    const Statuskopf& statuskopf() const { return statuskopf_; }
    const std::string& dateinamePanel() const { return dateinamePanel_; } // panel 2 of StatusBarDatei
    const std::string& ordnerPanel() const { return ordnerPanel_; }       // panel 4
    InfoSeite infoSeite() const { return infoSeite_; }
    const AllgemeineSeite& allgemein() const { return allgemein_; }
    const DateiSeite& datei() const { return datei_; }
    const StichKommSeite& stichKomm() const { return stichKomm_; }
    bool imViewer() const { return imViewer_; } // The viewer page stands in place of the tables.
    // The pages that are filled when they come up, with their own operations.
    Detailseiten& details() { return details_; }
    const Detailseiten& details() const { return details_; }
    // The page of composition or where-used, when one of these is shown.
    Verwendungsseite& verwendung() { return verwendung_; }
    // 1 the right-hand side shows the general page, 2 the viewer.
    int SeitenModus() const { return seitenModus_; }

    // A tab was chosen or its table built anew: what stood over the table before is no longer about it.
    std::function<void()> tabelleGewechselt;
    // Asked before a rebuild; false when another database was opened instead. Throws when there is none any more.
    std::function<bool()> databaseStillOpen;
    // A document was double-clicked: what "Bearbeiten" of the frame does.
    std::function<void()> bearbeiten;

private:
    void zeigeTab(int tab);
    void zeigeZeilen();
    void rememberCurrent();
    void vergissDatenbank();
    void BaumAufbauen(int tab);
    void KinderAufbauen();
    Eigenschaftsbaum& treeInFront() { return trees_[static_cast<std::size_t>(tab())]; }
    void leereDokument(int tab);
    void zeigeNachModus();
    void fillGeneralPage();
    void zeigeAllgemein();
    // The status bar tells of the current document.
    void tellOwnDocument();
    void zeigeEigenschaften();
    void zeigeSeite(InfoSeite seite);
    bool zeigeViewer();
    // False after the viewer's box.
    bool zeigeOderBox(Ansicht ansicht, const std::string& filename);
    void merkeSeite(InfoSeite seite);
    void oeffnePdf();
    void leseDatei();
    void setzeAttribut(bool gesetzt, void (Dateien::*setzer)(std::string_view, bool), bool Dateiattribute::*merkmal);

    SessionState& session_;
    Operations& operations_;
    Ports& ports_;
    GezeigteDateien& gezeigt_;
    DocumentTables& tables_;
    FilterState& filter_;
    std::array<Eigenschaftsbaum, ANZAHL_DOKUTYPEN> trees_;
    DocumentFacts facts_; // Of the document shown.
    std::string gemerkterPfad_;
    int seitenModus_ = 1;
    std::array<int, 6> seitenMerker_{};
    Statuskopf statuskopf_;
    std::string dateinamePanel_;
    std::string ordnerPanel_;
    InfoSeite infoSeite_ = InfoSeite::Keine;
    AllgemeineSeite allgemein_;
    DateiSeite datei_;
    StichKommSeite stichKomm_;
    Detailseiten details_;
    bool imViewer_ = false;
    Verwendungsseite verwendung_;
};

} // namespace quelvarn
