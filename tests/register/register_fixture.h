#pragma once

#include "fakes/fake_viewer.h"
#include "fakes/test_register.h"
#include "program/program.h"

#include <string>

namespace quelvarn {

// A register, and the document page over it.
class RegisterTest : public TestRegister
{
protected:
    static std::string pfad(std::string_view name) { return "W:\\Teile\\" + std::string(name); }

    // A document whose file lies at W:\Teile\<DokuBez>_<RevBez>.<endung>.
    Zeilenschluessel dokument(int tab, const std::string& DokuBez, const std::string& RevBez = "0", int status = 3)
    {
        const std::string endung(DOKUTYPEN[tab].endung.empty() ? "par" : DOKUTYPEN[tab].endung);
        const std::string name = DokuBez + "_" + RevBez + "." + endung;
        return zeile(DOKUTYPEN[tab].tabelle, {{"DokuBez", DokuBez},
                                              {"RevBez", RevBez},
                                              {"Dateiname", name},
                                              {"filename", pfad(name)},
                                              {"Status", status}});
    }

    void zeigeDokument(int tab, const std::string& DokuBez, const std::string& RevBez = "0")
    {
        tabs_.chooseTab(tab);
        tabs_.rebuild(); // It may have been written just now.
        const Recordset& zeilen = tables_[tab].rows();
        std::size_t i = 0;
        while (i < zeilen.RecordCount() &&
               alsText(zeilen.Zelle(i, "DokuBez")) + alsText(zeilen.Zelle(i, "RevBez")) != DokuBez + RevBez)
            ++i;
        tabs_.chooseRow(i);
        ASSERT_EQ(session_.AktDoku.DokuBez, DokuBez);
    }

    void erwarteFilterfrage(int tab, Antwort antwort)
    {
        const std::string name = session_.mehrzahl(tab);
        welt_.meldungen.erwarte("Filterung der Tabelle '" + name + "' aufheben?",
                                "ACHTUNG: Tabelle '" + name + "' ist gefiltert!\n" +
                                    (tab == 3 ? "Die zugehörige Zeichnung" : "Das zugehörige Dokument") +
                                    " kann eventuell nicht angezeigt werden.\nSoll der Filter aufgehoben werden?",
                                antwort);
    }
    static std::string dateiFehlt(const std::string& pfad)
    {
        return "Die Datei\n" + pfad +
               "\nist im Verzeichnis nicht vorhanden!\nMögliche Ursache:\n"
               "- Falscher Pfad- und/oder Dateiname.\n- Datei wurde im Verzeichnis gelöscht.";
    }
    // As a filter run leaves the table.
    void filtere(int tab, const std::string& filter)
    {
        tables_.opened(tab).rows().Filter(filter);
        tables_[tab].showFiltered({});
    }

    // The grid's first two columns, from the top.
    std::string liste() const
    {
        const Recordset& zeilen = tables_.current().visible();
        std::string text;
        for (std::size_t i = 0; zeilen.offen() && i < zeilen.RecordCount(); ++i)
            text += alsText(zeilen.Zelle(i, "DokuBez")) + "/" + alsText(zeilen.Zelle(i, "RevBez")) + " ";
        return text;
    }

    // Indented, a newer revision marked with "!".
    static std::string alsText(const std::vector<Knoten>& ebene, const std::string& einzug = "")
    {
        std::string text;
        for (const Knoten& knoten : ebene)
            text += einzug + knoten.text + (knoten.rot ? "!" : "") + "\n" + alsText(knoten.kinder, einzug + "  ");
        return text;
    }
    static std::string alsText(const Value& wert) { return quelvarn::alsText(wert); }
    std::string baum() const { return alsText(tree_.tree().wurzeln); }

    FakeViewer viewers_;
    Program program_{session_, ports_, viewers_};
    Operations& operations_ = program_.operations;
    FilterState& filter_ = program_.filter;
    DocumentTables& tables_ = program_.tables;
    TableTabs& tabs_ = program_.tabs;
    TreePanel& tree_ = program_.tree;
    InfoPanel& info_ = program_.info;
    ViewerArea& viewer_ = program_.viewer;
    DocumentPanels& panels_ = program_.panels;
    TableHeading& heading_ = program_.heading;
    DocumentPage& page_ = program_.documentPage;
    RelationActions& actions_ = program_.relationActions;
};

} // namespace quelvarn
