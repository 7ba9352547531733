#pragma once

#include "database/sql/conditions.h"
#include "fakes/test_register.h"
#include "filter/filter_context.h"

#include <array>
#include <string>
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
        tabelle.tabelle.Open(sql::Query(typ.tabelle)
                                 .where(sql::statusScope(typ.statusbereich ? session_.WhereStatus : ""))
                                 .sortedBy("DokuBez")
                                 .sortedDownBy("RevBez"),
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

// A register, its tables, and the filters over them.
class FilterTest : public TestRegister
{
protected:
    // With the address of an empty PostgreSQL database the register lies there.
    explicit FilterTest(const std::string& postgres = "") : TestRegister(postgres)
    {
        for (Filterzustand& typ : filter_.typen)
            typ.ChFilterStat.fill(true);
    }

    // A document of the type that the page is open for. Status 3 unless told.
    void dokument(const std::string& DokuBez, const Werte& werte = {})
    {
        std::vector<sql::Zuweisung> zuweisungen{{"DokuBez", DokuBez}, {"RevBez", "0"}};
        bool hatStatus = false;
        for (const auto& [spalte, wert] : werte) {
            zuweisungen.push_back({spalte, wert});
            hatStatus = hatStatus || std::string_view(spalte) == "Status";
        }
        if (!hatStatus)
            zuweisungen.push_back({"Status", 3});
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

    FilterState filter_;
    TestTabellen tabellen_{session_};
    Filterkontext kontext_{session_, operations_, filter_, tabellen_};
};

} // namespace quelvarn
