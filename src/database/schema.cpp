#include "database/schema.h"

#include "base/collation.h"
#include "database/document_types.h"

#include <algorithm>
#include <initializer_list>

namespace quelvarn {
namespace {

using Names = std::initializer_list<std::string_view>;
using Index = std::vector<IndexColumn>;

void appendColumns(std::vector<ColumnInfo>& columns, FieldType type, Names names)
{
    for (const std::string_view name : names)
        columns.push_back({std::string(name), type});
}

// One column for each letter: "Hauptmerkmal_" + "A".
void appendRow(std::vector<ColumnInfo>& columns, FieldType type, std::string_view stem, std::string_view letters)
{
    for (const char letter : letters)
        columns.push_back({std::string(stem) + letter, type});
}

Index ascending(Names names)
{
    Index index;
    for (const std::string_view name : names)
        index.push_back({std::string(name), false});
    return index;
}

TableSchema textTable(std::string_view name, Names columns, std::initializer_list<Names> indexes)
{
    TableSchema table{std::string(name), {}, {}};
    appendColumns(table.columns, FieldType::Text, columns);
    for (const Names& index : indexes)
        table.indexes.push_back(ascending(index));
    return table;
}

std::vector<ColumnInfo> documentColumns(const DocumentType& type)
{
    std::vector<ColumnInfo> columns;
    appendColumns(columns, FieldType::Text, {"DokuBez", "RevBez", "Dateiname", "filename"});
    appendColumns(columns, FieldType::Integer, {"Status"});
    appendColumns(columns, FieldType::Text, {"Projekt", "Material"});
    appendColumns(columns, FieldType::Date, {"Erstellt"});
    appendColumns(columns, FieldType::Text, {"Autor"});
    appendColumns(columns, FieldType::Date, {"Geaendert"});
    appendColumns(columns, FieldType::Text, {"Bearbeiter", "Aenderung"});
    appendColumns(columns, FieldType::Date, {"Gespeichert"});
    appendColumns(columns, FieldType::Text,
                  {"Titel", "Thema", "Manager", "Firma", "Kategorie", "Stichwoerter", "Kommentar", "Vorlage"});
    appendRow(columns, FieldType::Text, "Hauptmerkmal_", "ABCDEFG");
    appendRow(columns, FieldType::FloatingPoint, "Hauptwert_", "abcdefg");
    appendRow(columns, FieldType::Text, "Alias_", "abcdefg");
    if (type.key == "Draft")
        appendColumns(columns, FieldType::Text, {"F_05_leer"}); // Only drawings have a sheet format.
    return columns;
}

TableSchema documentTable(const DocumentType& type)
{
    TableSchema table{std::string(type.table), documentColumns(type), {}};
    // The order of the listing; with the status in it, counting and scoping need no look at the rows.
    table.indexes.push_back({{"DokuBez", false}, {"RevBez", true}, {"Status", false}});
    table.indexes.push_back(ascending({"filename"}));
    // The large levels of the structure tree are read from the index alone.
    table.indexes.push_back(ascending({"Hauptmerkmal_C", "Hauptmerkmal_D", "Hauptmerkmal_E"}));
    if (type.key == "Draft")
        table.indexes.push_back(ascending({"Kategorie", "Hauptmerkmal_C"})); // Templates.
    return table;
}

TableSchema userDefinedTable(const DocumentType& type)
{
    TableSchema table{std::string(type.tableUserDef), {}, {}};
    appendColumns(table.columns, FieldType::Text, {"DokuBez", "RevBez", "Name", "Wert"});
    appendColumns(table.columns, FieldType::Integer, {"Status"});
    appendColumns(table.columns, FieldType::Text, {"Projekt", "Autor", "Bearbeiter", "Material"});
    table.indexes.push_back(ascending({"DokuBez", "RevBez"}));
    // The filter over these properties takes the documents of a value from the index alone.
    Index perName{{"Name"}, {"Wert", false, true}};
    for (const char* column : {"DokuBez", "RevBez", "Status"})
        perName.push_back({column, false, false, true});
    table.indexes.push_back(std::move(perName));
    return table;
}

TableSchema useTable()
{
    TableSchema table{"CheckInOut", {}, {}};
    appendColumns(table.columns, FieldType::Integer, {"ADNutzer"});
    appendColumns(
        table.columns, FieldType::Text,
        {"AnwenderNutzer", "RechnerNutzer", "DateinameNutzer", "filenameNutzer", "DokuBezNutzer", "RevBezNutzer"});
    appendColumns(table.columns, FieldType::Date, {"DateTimeNutzer"});
    appendColumns(table.columns, FieldType::Text, {"KommentarNutzer"});
    table.indexes.push_back(ascending({"filenameNutzer", "ADNutzer"}));
    table.indexes.push_back(ascending({"ADNutzer", "RechnerNutzer"}));
    return table;
}

std::vector<TableSchema> linkTables()
{
    return {
        textTable("ZusBauPart", {"AssembDokuBez", "AssembRevBez", "AssembDateiname", "Assembfilename", "Part"},
                  {{"Part"}, {"AssembDokuBez", "AssembRevBez"}}),
        textTable("ZusBauSubAss", {"AssembDokuBez", "AssembRevBez", "AssembDateiname", "Assembfilename", "Subassembly"},
                  {{"Subassembly"}, {"AssembDokuBez", "AssembRevBez"}}),
        textTable(
            "VerbindungDraftPart",
            {"DokuBezDraft", "RevBezDraft", "DateinameDraft", "filenameDraft", "DateinameAssembPart", "PfadAssembPart"},
            {{"PfadAssembPart"}, {"DokuBezDraft", "RevBezDraft"}}),
        textTable("VerbindungWeldAssemb",
                  {"DokuBezWeld", "RevBezWeld", "DateinameWeld", "filenameWeld", "DateinameAssemb", "PfadAssemb"},
                  {{"PfadAssemb"}, {"DokuBezWeld", "RevBezWeld"}}),
        textTable("VerbindungPartZusDoku", {"Dokufilename", "ZusDokuDateiname", "ZusDokufilename"}, {{"Dokufilename"}}),
        textTable("TIFFTabelle", {"Dateiname", "filename"}, {{"Dateiname"}}),
    };
}

std::vector<TableSchema> createSchema()
{
    std::vector<TableSchema> schema;
    for (const DocumentType& type : DOCUMENT_TYPES)
        schema.push_back(documentTable(type));
    for (const DocumentType& type : DOCUMENT_TYPES)
        schema.push_back(userDefinedTable(type));
    for (TableSchema& table : linkTables())
        schema.push_back(std::move(table));
    schema.push_back(textTable("Ini", {"Feld1", "Feld2", "Feld3", "Feld4", "Feld5"}, {{"Feld1", "Feld2", "Feld3"}}));
    schema.push_back(useTable());
    schema.push_back(textTable("Adresstabelle", {"Kennung", "Name", "Wert"}, {{"Kennung"}}));
    return schema;
}

} // namespace

std::span<const TableSchema> registerSchema()
{
    static const std::vector<TableSchema> schema = createSchema();
    return schema;
}

const TableSchema* findTable(std::string_view name)
{
    const auto schema = registerSchema();
    const auto hits = std::ranges::find_if(schema, [&](const auto& table) { return equalText(table.name, name); });
    return hits == schema.end() ? nullptr : &*hits;
}

} // namespace quelvarn
