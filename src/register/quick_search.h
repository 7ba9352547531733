#pragma once

#include "filter/filter_state.h"
#include "session/operations.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

class DocumentTables;
class TableTabs;
class Recordset;
struct SessionState;

// The column that is searched: OpDokuBez, OpDatei or OpPfadDatei.
struct Suchfeld
{
    std::string_view feld;
    std::string_view benennung;
};
inline constexpr std::array<Suchfeld, 3> SUCHFELDER{{
    {"DokuBez", "Dokumentname"},
    {"Dateiname", "Dateiname"},
    {"filename", "Pfad-u. Dateiname"},
}};

// Where the text stands in the field (OptSuchPos). Plain numbers: other parts of the program pass them too.
enum Suchverfahren : int { TextAmAnfang = 0, TextBeliebig = 1 };
enum class Suchbeginn { Oben, AktuelleZeile };

// Moves to the first row from the top, or the next one, whose field holds the text. Without such a row the recordset
// stands at Eof; an empty text moves nothing. The text stands in the pattern as it is. Faults pass through.
bool SuchenImRecordset(Recordset& zeilen, std::string_view text, std::string_view feld, int art, Suchbeginn beginn,
                       Meldungen& meldungen);

// Keeps a text among the last eight.
void SuchTextMerken(std::vector<std::string>& suchtexte, std::string_view text);

// The quick search: finds a row of the table shown by a piece of text (FrmSuchenFiltern).
class Schnellsuche
{
public:
    Schnellsuche(SessionState& session, Operations& operations, DocumentTables& tables, TableTabs& tabs);

    // --- operations ---
    void setzeSuchtext(std::string_view CombSuchStr) { CombSuchStr_ = CombSuchStr; } // Typed; searches nothing.
    void sucheText(std::string_view CombSuchStr); // Enter, or an entry of the list chosen.
    void tippe(std::string_view TextDocuBez);     // Searches with each key.
    void beginne();                               // CmBeginnSuchen
    void suche();                                 // CmWeiterSuchen
    void setzeBeimTippen(bool ChDynSuchen);
    void setzeFeld(std::size_t suchfeld);
    void setzeVerfahren(Suchverfahren OptSuchPos) { OptSuchPos_ = OptSuchPos; }

    // --- state ---
    const std::vector<std::string>& suchtexte() const;
    const std::string& CombSuchStr() const { return CombSuchStr_; }
    const std::string& TextDocuBez() const { return TextDocuBez_; }
    bool beimTippen() const { return ChDynSuchen_; }
    std::size_t suchfeld() const { return suchfeld_; }
    const Suchfeld& feld() const { return SUCHFELDER[suchfeld_]; }
    Suchverfahren verfahren() const { return OptSuchPos_; }
    // What the last search looked for, while the same rows are shown; else nullptr.
    const std::vector<FilterRow>* gesuchteWerte() const;

private:
    enum class Ausgang { Gesucht, NichtGesucht, Aufgegeben };

    const std::string& nimmText();
    Ausgang sucheImBlatt();
    Recordset& zeilen();
    bool spalteBereit();

    SessionState& session_;
    Operations& operations_;
    Ports& ports_;
    DocumentTables& tables_;
    TableTabs& tabs_;
    std::string CombSuchStr_;
    std::string TextDocuBez_;
    bool ChDynSuchen_ = false;
    std::size_t suchfeld_ = 0;
    Suchverfahren OptSuchPos_ = TextAmAnfang;
    Suchbeginn beginn_ = Suchbeginn::Oben;
    std::vector<FilterRow> werte_;
    int tabDerWerte_ = 0;
    unsigned fassungDerWerte_ = 0;
};

} // namespace quelvarn
