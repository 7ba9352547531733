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
    static std::string documentPath(std::string_view name) { return "W:\\Teile\\" + std::string(name); }

    // A document whose file lies at W:\Parts\<DokuBez>_<RevBez>.<extension>.
    RowKey addDocument(int tab, const std::string& DokuBez, const std::string& RevBez = "0", int status = 3)
    {
        const std::string extension(DOCUMENT_TYPES[tab].extension.empty() ? "par" : DOCUMENT_TYPES[tab].extension);
        const std::string name = DokuBez + "_" + RevBez + "." + extension;
        return row(DOCUMENT_TYPES[tab].table, {{"DokuBez", DokuBez},
                                               {"RevBez", RevBez},
                                               {"Dateiname", name},
                                               {"filename", documentPath(name)},
                                               {"Status", status}});
    }

    void showDocument(int tab, const std::string& DokuBez, const std::string& RevBez = "0")
    {
        tabs_.chooseTab(tab);
        tabs_.rebuild(); // It may have been written just now.
        const Recordset& rows = tables_[tab].rows();
        std::size_t i = 0;
        while (i < rows.RecordCount() &&
               asText(rows.cell(i, "DokuBez")) + asText(rows.cell(i, "RevBez")) != DokuBez + RevBez)
            ++i;
        tabs_.chooseRow(i);
        ASSERT_EQ(session_.AktDoku.DokuBez, DokuBez);
    }

    void expectFilterQuestion(int tab, Answer answer)
    {
        const std::string name = session_.labels.plural(tab);
        world_.boxes.expect("Filterung der Tabelle '" + name + "' aufheben?",
                            "ACHTUNG: Tabelle '" + name + "' ist gefiltert!\n" +
                                (tab == 3 ? "Die zugehörige Zeichnung" : "Das zugehörige Dokument") +
                                " kann eventuell nicht angezeigt werden.\nSoll der Filter aufgehoben werden?",
                            answer);
    }
    static std::string fileMissing(const std::string& documentPath)
    {
        return "Die Datei\n" + documentPath +
               "\nist im Verzeichnis nicht vorhanden!\nMögliche Ursache:\n"
               "- Falscher Pfad- und/oder Dateiname.\n- Datei wurde im Verzeichnis gelöscht.";
    }
    // As a filter run leaves the table.
    void filter(int tab, const std::string& filter)
    {
        tables_.opened(tab).rows().Filter(filter);
        tables_[tab].showFiltered({});
    }

    // The grid's first two columns, from the top.
    std::string list() const
    {
        const Recordset& rows = tables_.current().visible();
        std::string text;
        for (std::size_t i = 0; rows.open() && i < rows.RecordCount(); ++i)
            text += asText(rows.cell(i, "DokuBez")) + "/" + asText(rows.cell(i, "RevBez")) + " ";
        return text;
    }

    // Indented, a newer revision marked with "!".
    static std::string asText(const std::vector<Node>& level, const std::string& indent = "")
    {
        std::string text;
        for (const Node& node : level)
            text += indent + node.text + (node.red ? "!" : "") + "\n" + asText(node.children, indent + "  ");
        return text;
    }
    static std::string asText(const Value& value) { return quelvarn::asText(value); }
    std::string tree() const { return asText(tree_.tree().roots); }

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
