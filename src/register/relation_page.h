#pragma once

#include "database/recordset.h"
#include "register/relation_rows.h"
#include "session/operations.h"

#include <functional>
#include <string>
#include <string_view>

namespace quelvarn {

class DocumentPanels;
class DocumentTables;
class GezeigteDateien;
struct SessionState;
struct Verwendungsart;

// One of the six pages of composition and where-used: the rows of the document shown, the document of the current
// row, and what can be done with it. Only one of them stands on the right at a time.
class Verwendungsseite
{
public:
    Verwendungsseite(SessionState& session, Operations& operations, const DocumentTables& tables,
                     DocumentPanels& panels, GezeigteDateien& gezeigt);

    // --- operations ---
    void zeileGewaehlt(std::size_t position);
    void setzeGrafik(bool ChViewGrafik);
    void anschauen();
    void pfadInZwSp();

    // --- for what leads away from the page (relation_actions.h) ---
    // Runs where there are rows, with the box of this page.
    void perform(const std::function<void()>& operation);
    const DokuTyp* type() const { return dokument_.typ; } // Of the current row's document; nullptr for none.

    // --- for the document page; faults pass through ---
    void fuelle(const Verwendungsart& art);
    void leere();

    // --- state ---
    const Verwendungsart* art() const { return art_; } // nullptr while none of the pages is shown.
    const Recordset& zeilen() const { return zeilen_; }
    unsigned fassung() const { return fassung_; } // Rises when the page is filled.
    bool hatZeilen() const { return art_ && zeilen_.offen() && zeilen_.RecordCount() > 0; }
    // The document of the current row; "" for none.
    const std::string& filename() const { return filename_; }
    const AllgemeineSeite& details() const { return dokument_.details; }
    int SondertabelleNr() const { return dokument_.SondertabelleNr; }
    // The buttons of the tool bar need a row whose file belongs to a table.
    bool bedienbar() const { return dokument_.typ != nullptr; }
    bool ChViewGrafik() const { return grafik_; }
    bool zeigtVorschau() const; // In place of the details.

private:
    void leseZeile();
    bool liegtImStatusbereich() const;
    void pruefeBestandteil();
    bool hatZugriff();
    bool ladeVorschau();
    void leereVorschau();

    SessionState& session_;
    Operations& operations_;
    Ports& ports_;
    GezeigteDateien& gezeigt_;
    const DocumentTables& tables_;
    DocumentPanels& panels_;
    const Verwendungsart* art_ = nullptr;
    Recordset zeilen_;
    unsigned fassung_ = 0;
    std::string filename_;
    Verwendungsdokument dokument_;
    bool grafik_ = false;
};

} // namespace quelvarn
