#pragma once

#include "database/create.h"
#include "database/engine.h"
#include "fakes/fake_ports.h"
#include "fakes/temp_folder.h"
#include "filter/filter_context.h"
#include "session/rights.h"

#include <array>
#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace quelvarn {

// Opens the tables of a register as the document page does, and keeps what the filters told it.
class TestTabellen final : public Tabellenherr
{
public:
    explicit TestTabellen(SessionState& session) : session_(session) {}

    int filterTab() const override { return tab; }
    GefilterteTabelle& filterTabelle(int nummer) override
    {
        GefilterteTabelle& tabelle = tabellen_[static_cast<std::size_t>(nummer)];
        if (!tabelle.geoeffnet())
            oeffne(nummer);
        return tabelle;
    }
    void filterGewechselt(int nummer) override { gewechselt.push_back(nummer); }
    void filterAufheben(int nummer) override
    {
        GefilterteTabelle& tabelle = tabellen_[static_cast<std::size_t>(nummer)];
        if (!tabelle.geoeffnet())
            return;
        if (tabelle.zustand == NeuereDaten)
            oeffne(nummer);
        tabelle.tabelle.Filter("");
        tabelle.zustand = tabelle.anzahl > 0 ? Offen : Leer;
    }

    void oeffne(int nummer)
    {
        const DokuTyp& typ = DOKUTYPEN[static_cast<std::size_t>(nummer)];
        GefilterteTabelle& tabelle = tabellen_[static_cast<std::size_t>(nummer)];
        tabelle.tabelle.setzeGanzGrenze(ganzGrenze);
        tabelle.tabelle.Open("Select * From " + std::string(typ.tabelle) +
                                 (typ.statusbereich ? session_.WhereStatus : std::string()) +
                                 " ORDER BY DokuBez, RevBez DESC",
                             session_.Verbindung);
        tabelle.anzahl = tabelle.tabelle.RecordCount();
        tabelle.zustand = tabelle.anzahl > 0 ? Offen : Leer;
        ++tabelle.fassung;
    }

    int tab = 0;
    std::size_t ganzGrenze = 1; // Tests read columns when they are wanted, as large tables do.
    std::vector<int> gewechselt;

private:
    SessionState& session_;
    std::array<GefilterteTabelle, ANZAHL_DOKUTYPEN> tabellen_;
};

// A register in a temporary folder, its tables, and the filters over them.
class FilterTest : public testing::Test
{
protected:
    FilterTest()
    {
        engine_ = oeffneSqlite(ordner_ / "Werk.mdb", true);
        legeRegisterAn(*engine_);
        session_.Verbindung.Open(ordner_ / "Werk.mdb");
        session_.DatenbankPfad = "W:\\Werk.mdb";
        session_.DatenbankOk = true;
        session_.Anwender = "Mueller";
        siehtStati("012345");
        for (Filterzustand& typ : filter_.typen)
            typ.ChFilterStat.fill(true);
    }

    void siehtStati(std::string_view stati)
    {
        session_.Sichtbar = {};
        for (const char status : stati)
            session_.Sichtbar[static_cast<std::size_t>(status - '0')] = 1;
        bildeStatusbereich(session_);
    }

    using Werte = std::initializer_list<std::pair<const char*, Value>>;
    // A row of any table; tables that are open already see it after `neuOeffnen`.
    void zeile(std::string_view tabelle, const Werte& werte)
    {
        std::vector<sql::Zuweisung> zuweisungen;
        for (const auto& [spalte, wert] : werte)
            zuweisungen.push_back({spalte, wert});
        engine_->fuegeEin(tabelle, zuweisungen);
    }
    // A document of the type that the page is open for. Status 3 unless told.
    void dokument(const std::string& DokuBez, const Werte& werte = {})
    {
        std::vector<sql::Zuweisung> zuweisungen{{"DokuBez", DokuBez}, {"RevBez", std::string("0")}};
        bool hatStatus = false;
        for (const auto& [spalte, wert] : werte) {
            zuweisungen.push_back({spalte, wert});
            hatStatus = hatStatus || std::string_view(spalte) == "Status";
        }
        if (!hatStatus)
            zuweisungen.push_back({"Status", std::int64_t{3}});
        engine_->fuegeEin(DOKUTYPEN[static_cast<std::size_t>(kontext_.tab)].tabelle, zuweisungen);
    }

    void neuOeffnen() { tabellen_.oeffne(kontext_.tab); }
    Recordset& tabelle() { return kontext_.tabelle().tabelle; }

    // The documents that the table shows, from the top, "A B C".
    std::string gezeigt()
    {
        const Recordset& zeilen = kontext_.tabelle().sichtbar();
        std::string text;
        for (std::size_t i = 0; zeilen.offen() && i < zeilen.RecordCount(); ++i)
            text += (i > 0 ? " " : "") + alsText(zeilen.Zelle(i, "DokuBez"));
        return text;
    }

    TempFolder ordner_;
    std::shared_ptr<Engine> engine_;
    FakePorts welt_;
    Ports ports_ = welt_.ports();
    SessionState session_;
    FilterState filter_;
    TestTabellen tabellen_{session_};
    Filterkontext kontext_{session_, ports_, filter_, tabellen_, 0, Filterbereich::Eigenschaften, {}, {}};
};

} // namespace quelvarn
