#include "register/quick_search.h"

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

bool SuchenImRecordset(Recordset& zeilen, std::string_view text, std::string_view feld, int art, Suchbeginn beginn,
                       Meldungen& meldungen)
{
    if (text.empty())
        return false;
    if (art != TextAmAnfang && art != TextBeliebig) {
        meldungen.warnung("Suchverfahren", "Falsches Suchverfahren!");
        return false;
    }
    const std::string pattern = fmt::format("{}{}%", art == TextBeliebig ? "%" : "", text);
    const std::string kriterium = fmt::format("{} LIKE {}", feld, sql::quoted(pattern));
    const bool oben = beginn == Suchbeginn::Oben;
    return zeilen.Find(kriterium, oben ? 0 : 1, Suchrichtung::Vorwaerts, oben);
}

void SuchTextMerken(std::vector<std::string>& suchtexte, std::string_view text)
{
    if (text.empty() || std::find(suchtexte.begin(), suchtexte.end(), text) != suchtexte.end())
        return;
    if (suchtexte.size() >= ANZAHL_SUCHTEXTE)
        suchtexte.erase(suchtexte.begin());
    suchtexte.emplace_back(text);
}

Schnellsuche::Schnellsuche(SessionState& session, Operations& operations, DocumentTables& tables, TableTabs& tabs)
    : session_(session), operations_(operations), ports_(operations.ports()), tables_(tables), tabs_(tabs)
{}

void Schnellsuche::sucheText(std::string_view CombSuchStr)
{
    CombSuchStr_ = CombSuchStr;
    if (!ChDynSuchen_ && !CombSuchStr_.empty())
        beginne();
}

void Schnellsuche::tippe(std::string_view TextDocuBez)
{
    TextDocuBez_ = TextDocuBez;
    sucheImBlatt();
}

void Schnellsuche::beginne()
{
    beginn_ = Suchbeginn::Oben;
    werte_ = {{std::string(feld().feld), std::string(feld().benennung), nimmText()}};
    sucheImBlatt();
}

void Schnellsuche::suche()
{
    beginn_ = Suchbeginn::AktuelleZeile;
    nimmText();
    sucheImBlatt();
}

void Schnellsuche::setzeBeimTippen(bool ChDynSuchen)
{
    if (ChDynSuchen == ChDynSuchen_)
        return;
    ChDynSuchen_ = ChDynSuchen;
    if (!ChDynSuchen) {
        CombSuchStr_ = TextDocuBez_;
        return operations_.changed(Part::LeftBar);
    }
    TextDocuBez_ = CombSuchStr_;
    if (sucheImBlatt() == Ausgang::Aufgegeben) // Without its column in memory each key would wait again.
        ChDynSuchen_ = false;
    operations_.changed(Part::LeftBar);
}

void Schnellsuche::setzeFeld(std::size_t suchfeld)
{
    assert(suchfeld < SUCHFELDER.size());
    suchfeld_ = suchfeld;
    if (ChDynSuchen_)
        operations_.report([this] { spalteBereit(); });
    operations_.changed(Part::LeftBar);
}

const std::vector<std::string>& Schnellsuche::suchtexte() const
{
    return session_.pages.Suchtexte;
}

const std::vector<FilterRow>* Schnellsuche::gesuchteWerte() const
{
    const bool dieselben = tabDerWerte_ == tables_.tab() && fassungDerWerte_ == tables_.current().generation();
    return dieselben && !werte_.empty() ? &werte_ : nullptr;
}

const std::string& Schnellsuche::nimmText()
{
    if (ChDynSuchen_)
        return TextDocuBez_;
    SuchTextMerken(session_.pages.Suchtexte, CombSuchStr_);
    return CombSuchStr_;
}

Schnellsuche::Ausgang Schnellsuche::sucheImBlatt()
{
    tabDerWerte_ = tables_.tab();
    fassungDerWerte_ = tables_.current().generation();
    Ausgang ausgang = Ausgang::NichtGesucht;
    operations_.report([&] {
        if (!tables_.current().hasRows())
            return;
        if (!spalteBereit()) {
            ausgang = Ausgang::Aufgegeben;
            return;
        }
        const std::string& text = ChDynSuchen_ ? TextDocuBez_ : CombSuchStr_;
        SuchenImRecordset(zeilen(), text, feld().feld, OptSuchPos_, beginn_, ports_.meldungen);
        ausgang = text.empty() ? Ausgang::NichtGesucht : Ausgang::Gesucht;
    });
    if (ausgang == Ausgang::Gesucht)
        tabs_.followRow();
    operations_.changed(Part::LeftBar);
    return ausgang;
}

Recordset& Schnellsuche::zeilen()
{
    return tables_.current().visible();
}

// The first search of a column reads it, which takes its time in a large table. False: given up.
bool Schnellsuche::spalteBereit()
{
    if (!zeilen().offen() || zeilen().spalteGeladen(feld().feld))
        return true;
    LangeArbeit arbeit(ports_.fortschritt, "Die Tabelle wird gelesen");
    zeilen().ladeSpalte(feld().feld, std::ref(arbeit));
    return !arbeit.aufgegeben();
}

// A pattern that cannot be read, or a fault of the connection: the common report alone.
} // namespace quelvarn
