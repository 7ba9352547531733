#include "register/quick_search.h"

#include "database/recordset_columns.h"
#include "database/sql/conditions.h"
#include "platform/boxes.h"
#include "platform/progress.h"
#include "register/table_tabs.h"
#include "session/error_report.h"
#include "session/ini_reader/ini_rows.h"
#include "session/session_state.h"

#include <algorithm>
#include <cassert>
#include <fmt/format.h>

namespace quelvarn {

bool SuchenImRecordset(Recordset& rows, std::string_view text, std::string_view field, int kind, SearchStart begin,
                       Boxes& boxes)
{
    if (text.empty())
        return false;
    if (kind != TextAtBegin && kind != TextAny) {
        boxes.warn("Suchverfahren", "Falsches Suchverfahren!");
        return false;
    }
    const std::string pattern = fmt::format("{}{}%", kind == TextAny ? "%" : "", text);
    const std::string criterion = fmt::format("{} LIKE {}", field, sql::quoted(pattern));
    const bool above = begin == SearchStart::Above;
    return rows.Find(criterion, above ? 0 : 1, SearchDirection::Forward, above);
}

void SuchTextMerken(std::vector<std::string>& searchTexts, std::string_view text)
{
    if (text.empty() || std::find(searchTexts.begin(), searchTexts.end(), text) != searchTexts.end())
        return;
    if (searchTexts.size() >= SEARCH_TEXT_COUNT)
        searchTexts.erase(searchTexts.begin());
    searchTexts.emplace_back(text);
}

QuickSearch::QuickSearch(std::vector<std::string>& SearchTexts, Operations& operations, DocumentTables& tables,
                         TableTabs& tabs)
    : SearchTexts_(SearchTexts), operations_(operations), ports_(operations.ports()), tables_(tables), tabs_(tabs)
{}

void QuickSearch::searchText(std::string_view CombSuchStr)
{
    CombSuchStr_ = CombSuchStr;
    if (!ChDynSuchen_ && !CombSuchStr_.empty())
        begin();
}

void QuickSearch::type(std::string_view TextDocuBez)
{
    TextDocuBez_ = TextDocuBez;
    searchInSheet();
}

void QuickSearch::begin()
{
    begin_ = SearchStart::Above;
    values_ = {{std::string(field().field), std::string(field().caption), takeText()}};
    searchInSheet();
}

void QuickSearch::search()
{
    begin_ = SearchStart::CurrentRow;
    takeText();
    searchInSheet();
}

void QuickSearch::setAtTyping(bool ChDynSuchen)
{
    if (ChDynSuchen == ChDynSuchen_)
        return;
    ChDynSuchen_ = ChDynSuchen;
    if (!ChDynSuchen) {
        CombSuchStr_ = TextDocuBez_;
        return operations_.changed(Part::LeftBar);
    }
    TextDocuBez_ = CombSuchStr_;
    if (searchInSheet() == Outcome::Abandoned) // Without its column in memory each key would wait again.
        ChDynSuchen_ = false;
    operations_.changed(Part::LeftBar);
}

void QuickSearch::setField(std::size_t searchField)
{
    assert(searchField < SEARCH_FIELDS.size());
    searchField_ = searchField;
    if (ChDynSuchen_)
        operations_.report([this] { columnReady(); });
    operations_.changed(Part::LeftBar);
}

const std::vector<FilterRow>* QuickSearch::soughtValues() const
{
    const bool same = tabOfValues_ == tables_.tab() && generationOfValues_ == tables_.current().generation();
    return same && !values_.empty() ? &values_ : nullptr;
}

const std::string& QuickSearch::takeText()
{
    if (ChDynSuchen_)
        return TextDocuBez_;
    SuchTextMerken(SearchTexts_, CombSuchStr_);
    return CombSuchStr_;
}

QuickSearch::Outcome QuickSearch::searchInSheet()
{
    tabOfValues_ = tables_.tab();
    generationOfValues_ = tables_.current().generation();
    Outcome outcome = Outcome::NotSought;
    operations_.report([&] {
        if (!tables_.current().hasRows())
            return;
        if (!columnReady()) {
            outcome = Outcome::Abandoned;
            return;
        }
        const std::string& text = ChDynSuchen_ ? TextDocuBez_ : CombSuchStr_;
        SuchenImRecordset(rows(), text, field().field, OptSuchPos_, begin_, ports_.boxes);
        outcome = text.empty() ? Outcome::NotSought : Outcome::Sought;
    });
    if (outcome == Outcome::Sought)
        tabs_.followRow();
    operations_.changed(Part::LeftBar);
    return outcome;
}

Recordset& QuickSearch::rows()
{
    return tables_.current().visible();
}

// The first search of a column reads it, which takes its time in a large table. False: given up.
bool QuickSearch::columnReady()
{
    if (!rows().open() || columnLoaded(rows(), field().field))
        return true;
    LongWork work(ports_.progress, "Die Tabelle wird gelesen");
    loadColumn(rows(), field().field, std::ref(work));
    return !work.abandoned();
}

// A pattern that cannot be read, or a fault of the connection: the common report alone.
} // namespace quelvarn
