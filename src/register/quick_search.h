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

// The column that is searched: OpDokuBez, OpDatei or OpPfadDatei.
struct SearchField
{
    std::string_view field;
    std::string_view caption;
};
inline constexpr std::array<SearchField, 3> SEARCH_FIELDS{{
    {"DokuBez", "Dokumentname"},
    {"Dateiname", "Dateiname"},
    {"filename", "Pfad-u. Dateiname"},
}};

// Where the text stands in the field (OptSuchPos). Plain numbers: other parts of the program pass them too.
enum SearchMethod : int { TextAtBegin = 0, TextAny = 1 };
enum class SearchStart { Above, CurrentRow };

// Moves to the first row from the top, or the next one, whose field holds the text. Without such a row the recordset
// stands at Eof; an empty text moves nothing. The text stands in the pattern as it is. Faults pass through.
bool SuchenImRecordset(Recordset& rows, std::string_view text, std::string_view field, int kind, SearchStart begin,
                       Boxes& boxes);

// Keeps a text among the last eight.
void SuchTextMerken(std::vector<std::string>& searchTexts, std::string_view text);

// The quick search: finds a row of the table shown by a piece of text (FrmSuchenFiltern).
class QuickSearch
{
public:
    QuickSearch(std::vector<std::string>& SearchTexts, Operations& operations, DocumentTables& tables, TableTabs& tabs);

    // --- operations ---
    void setSearchText(std::string_view CombSuchStr) { CombSuchStr_ = CombSuchStr; } // Typed; searches nothing.
    void searchText(std::string_view CombSuchStr); // Enter, or an entry of the list chosen.
    void type(std::string_view TextDocuBez);       // Searches with each key.
    void begin();                                  // CmBeginnSuchen
    void search();                                 // CmWeiterSuchen
    void setAtTyping(bool ChDynSuchen);
    void setField(std::size_t searchField);
    void setMethod(SearchMethod OptSuchPos) { OptSuchPos_ = OptSuchPos; }

    // --- state ---
    const std::vector<std::string>& searchTexts() const { return SearchTexts_; }
    const std::string& CombSuchStr() const { return CombSuchStr_; }
    const std::string& TextDocuBez() const { return TextDocuBez_; }
    bool atTyping() const { return ChDynSuchen_; }
    std::size_t searchField() const { return searchField_; }
    const SearchField& field() const { return SEARCH_FIELDS[searchField_]; }
    SearchMethod method() const { return OptSuchPos_; }
    // What the last search looked for, while the same rows are shown; else nullptr.
    const std::vector<FilterRow>* soughtValues() const;

private:
    enum class Outcome { Sought, NotSought, Abandoned };

    const std::string& takeText();
    Outcome searchInSheet();
    Recordset& rows();
    bool columnReady();

    std::vector<std::string>& SearchTexts_;
    Operations& operations_;
    Ports& ports_;
    DocumentTables& tables_;
    TableTabs& tabs_;
    std::string CombSuchStr_;
    std::string TextDocuBez_;
    bool ChDynSuchen_ = false;
    std::size_t searchField_ = 0;
    SearchMethod OptSuchPos_ = TextAtBegin;
    SearchStart begin_ = SearchStart::Above;
    std::vector<FilterRow> values_;
    int tabOfValues_ = 0;
    unsigned generationOfValues_ = 0;
};

} // namespace quelvarn
