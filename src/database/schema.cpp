#include "database/schema.h"

#include "base/collation.h"
#include "database/document_types.h"

#include <algorithm>
#include <initializer_list>

namespace quelvarn {
namespace {

using Namen = std::initializer_list<std::string_view>;
using Index = std::vector<IndexSpalte>;

void fuegeSpaltenAn(std::vector<Spalte>& spalten, FeldTyp typ, Namen namen)
{
    for (const std::string_view name : namen)
        spalten.push_back({std::string(name), typ});
}

// One column for each letter: "Hauptmerkmal_" + "A".
void fuegeReiheAn(std::vector<Spalte>& spalten, FeldTyp typ, std::string_view stamm, std::string_view buchstaben)
{
    for (const char buchstabe : buchstaben)
        spalten.push_back({std::string(stamm) + buchstabe, typ});
}

Index aufsteigend(Namen namen)
{
    Index index;
    for (const std::string_view name : namen)
        index.push_back({std::string(name), false});
    return index;
}

Tabellenschema texttabelle(std::string_view name, Namen spalten, std::initializer_list<Namen> indexe)
{
    Tabellenschema tabelle{std::string(name), {}, {}};
    fuegeSpaltenAn(tabelle.spalten, FeldTyp::Text, spalten);
    for (const Namen& index : indexe)
        tabelle.indexe.push_back(aufsteigend(index));
    return tabelle;
}

std::vector<Spalte> dokumentspalten(const DokuTyp& typ)
{
    std::vector<Spalte> spalten;
    fuegeSpaltenAn(spalten, FeldTyp::Text, {"DokuBez", "RevBez", "Dateiname", "filename"});
    fuegeSpaltenAn(spalten, FeldTyp::Ganzzahl, {"Status"});
    fuegeSpaltenAn(spalten, FeldTyp::Text, {"Projekt", "Material"});
    fuegeSpaltenAn(spalten, FeldTyp::Datum, {"Erstellt"});
    fuegeSpaltenAn(spalten, FeldTyp::Text, {"Autor"});
    fuegeSpaltenAn(spalten, FeldTyp::Datum, {"Geaendert"});
    fuegeSpaltenAn(spalten, FeldTyp::Text, {"Bearbeiter", "Aenderung"});
    fuegeSpaltenAn(spalten, FeldTyp::Datum, {"Gespeichert"});
    fuegeSpaltenAn(spalten, FeldTyp::Text,
                   {"Titel", "Thema", "Manager", "Firma", "Kategorie", "Stichwoerter", "Kommentar", "Vorlage"});
    fuegeReiheAn(spalten, FeldTyp::Text, "Hauptmerkmal_", "ABCDEFG");
    fuegeReiheAn(spalten, FeldTyp::Gleitkomma, "Hauptwert_", "abcdefg");
    fuegeReiheAn(spalten, FeldTyp::Text, "Alias_", "abcdefg");
    if (typ.schluessel == "Draft")
        fuegeSpaltenAn(spalten, FeldTyp::Text, {"F_05_leer"}); // Only drawings have a sheet format.
    return spalten;
}

Tabellenschema dokumenttabelle(const DokuTyp& typ)
{
    Tabellenschema tabelle{std::string(typ.tabelle), dokumentspalten(typ), {}};
    // The order of the listing; with the status in it, counting and scoping need no look at the rows.
    tabelle.indexe.push_back({{"DokuBez", false}, {"RevBez", true}, {"Status", false}});
    tabelle.indexe.push_back(aufsteigend({"filename"}));
    // The large levels of the structure tree are read from the index alone.
    tabelle.indexe.push_back(aufsteigend({"Hauptmerkmal_C", "Hauptmerkmal_D", "Hauptmerkmal_E"}));
    if (typ.schluessel == "Draft")
        tabelle.indexe.push_back(aufsteigend({"Kategorie", "Hauptmerkmal_C"})); // Templates.
    return tabelle;
}

Tabellenschema benutzerdefinierteTabelle(const DokuTyp& typ)
{
    Tabellenschema tabelle{std::string(typ.tabelleBenutzDef), {}, {}};
    fuegeSpaltenAn(tabelle.spalten, FeldTyp::Text, {"DokuBez", "RevBez", "Name", "Wert"});
    fuegeSpaltenAn(tabelle.spalten, FeldTyp::Ganzzahl, {"Status"});
    fuegeSpaltenAn(tabelle.spalten, FeldTyp::Text, {"Projekt", "Autor", "Bearbeiter", "Material"});
    tabelle.indexe.push_back(aufsteigend({"DokuBez", "RevBez"}));
    // The filter over these properties takes the documents of a value from the index alone.
    Index jeName{{"Name"}, {"Wert", false, true}};
    for (const char* spalte : {"DokuBez", "RevBez", "Status"})
        jeName.push_back({spalte, false, false, true});
    tabelle.indexe.push_back(std::move(jeName));
    return tabelle;
}

Tabellenschema benutzungstabelle()
{
    Tabellenschema tabelle{"CheckInOut", {}, {}};
    fuegeSpaltenAn(tabelle.spalten, FeldTyp::Ganzzahl, {"ADNutzer"});
    fuegeSpaltenAn(
        tabelle.spalten, FeldTyp::Text,
        {"AnwenderNutzer", "RechnerNutzer", "DateinameNutzer", "filenameNutzer", "DokuBezNutzer", "RevBezNutzer"});
    fuegeSpaltenAn(tabelle.spalten, FeldTyp::Datum, {"DateTimeNutzer"});
    fuegeSpaltenAn(tabelle.spalten, FeldTyp::Text, {"KommentarNutzer"});
    tabelle.indexe.push_back(aufsteigend({"filenameNutzer", "ADNutzer"}));
    tabelle.indexe.push_back(aufsteigend({"ADNutzer", "RechnerNutzer"}));
    return tabelle;
}

std::vector<Tabellenschema> verbindungstabellen()
{
    return {
        texttabelle("ZusBauPart", {"AssembDokuBez", "AssembRevBez", "AssembDateiname", "Assembfilename", "Part"},
                    {{"Part"}, {"AssembDokuBez", "AssembRevBez"}}),
        texttabelle("ZusBauSubAss",
                    {"AssembDokuBez", "AssembRevBez", "AssembDateiname", "Assembfilename", "Subassembly"},
                    {{"Subassembly"}, {"AssembDokuBez", "AssembRevBez"}}),
        texttabelle(
            "VerbindungDraftPart",
            {"DokuBezDraft", "RevBezDraft", "DateinameDraft", "filenameDraft", "DateinameAssembPart", "PfadAssembPart"},
            {{"PfadAssembPart"}, {"DokuBezDraft", "RevBezDraft"}}),
        texttabelle("VerbindungWeldAssemb",
                    {"DokuBezWeld", "RevBezWeld", "DateinameWeld", "filenameWeld", "DateinameAssemb", "PfadAssemb"},
                    {{"PfadAssemb"}, {"DokuBezWeld", "RevBezWeld"}}),
        texttabelle("VerbindungPartZusDoku", {"Dokufilename", "ZusDokuDateiname", "ZusDokufilename"},
                    {{"Dokufilename"}}),
        texttabelle("TIFFTabelle", {"Dateiname", "filename"}, {{"Dateiname"}}),
    };
}

std::vector<Tabellenschema> erstelleSchema()
{
    std::vector<Tabellenschema> schema;
    for (const DokuTyp& typ : DOKUTYPEN)
        schema.push_back(dokumenttabelle(typ));
    for (const DokuTyp& typ : DOKUTYPEN)
        schema.push_back(benutzerdefinierteTabelle(typ));
    for (Tabellenschema& tabelle : verbindungstabellen())
        schema.push_back(std::move(tabelle));
    schema.push_back(texttabelle("Ini", {"Feld1", "Feld2", "Feld3", "Feld4", "Feld5"}, {{"Feld1", "Feld2", "Feld3"}}));
    schema.push_back(benutzungstabelle());
    schema.push_back(texttabelle("Adresstabelle", {"Kennung", "Name", "Wert"}, {{"Kennung"}}));
    return schema;
}

} // namespace

std::span<const Tabellenschema> registerschema()
{
    static const std::vector<Tabellenschema> schema = erstelleSchema();
    return schema;
}

const Tabellenschema* findTabelle(std::string_view name)
{
    const auto schema = registerschema();
    const auto treffer =
        std::ranges::find_if(schema, [&](const auto& tabelle) { return equalText(tabelle.name, name); });
    return treffer == schema.end() ? nullptr : &*treffer;
}

} // namespace quelvarn
