#include "register/detail_lists.h"

#include "base/date_time.h"
#include "base/number_format.h"
#include "database/sql/conditions.h"
#include "documents/document_record.h"
#include "platform/files.h"
#include "register/text_list.h"
#include "session/session_state.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <optional>

namespace quelvarn {
namespace {

constexpr std::string_view PARAGRAPH = "      ";   // Before the letter of a feature.
constexpr std::size_t FIRST_STRUCTURE_FEATURE = 2; // Hauptmerkmal_C
constexpr int DECIMALS = 3;

char letter(char first, std::size_t number)
{
    return static_cast<char>(first + static_cast<int>(number));
}

std::string dateOrEmpty(const Value& date)
{
    return isNull(date) ? std::string() : formatDate(asDate(date));
}

std::string featureName(const Labels& labels, std::size_t number)
{
    const auto name = labels.Bezeichnungen.find(fmt::format("hauptmerkmal {}", letter('a', number)));
    return name == labels.Bezeichnungen.end() ? std::string() : name->second;
}

void separate(TextList& list)
{
    list.row({{"Bezeichn", "#######"},
              {"Inhalt", "############################"},
              {"Benennung", "##########################"}});
}

} // namespace

Recordset InfoRevision(Connection& connection, std::string_view table, std::string_view DokuBez, RevisionFilter view)
{
    const bool created = view == RevisionFilter::Erstellt;
    const std::string_view date = created ? "Erstellt" : "Geaendert";
    const std::string_view name = created ? "Autor" : "Bearbeiter";
    Recordset rows;
    rows.Open(
        sql::Query(table)
            .columns({"RevBez", date, name, "Aenderung"})
            .distinct()
            .where(sql::all(sql::equal("DokuBez", DokuBez), sql::compare("Aenderung", sql::Comparison::NotLike, "")))
            .sortedBy("RevBez"),
        connection);
    TextList list{"RevBez", "Geaendert", "Bearbeiter", "Aenderung"};
    for (; !rows.eof(); rows.MoveNext())
        list.row({{"RevBez", rows.Text("RevBez")},
                  {"Geaendert", dateOrEmpty(rows.field(date))},
                  {"Bearbeiter", rows.Text(name)},
                  {"Aenderung", rows.Text("Aenderung")}});
    return list.finish();
}

std::span<const std::string> templateBranch(const DokuRecord& record)
{
    const auto features = std::span(record.StructureFeature).subspan(FIRST_STRUCTURE_FEATURE);
    const auto behind = std::ranges::find(features, std::string());
    return features.first(static_cast<std::size_t>(behind - features.begin()));
}

Recordset structureFeatureList(const DokuRecord& record, const Labels& labels, bool withTemplate)
{
    TextList list{"Bezeichn", "Inhalt", "Benennung"};
    const std::size_t level = withTemplate ? templateBranch(record).size() : 0;
    for (std::size_t i = 0; i < record.StructureFeature.size(); ++i) {
        if (i == FIRST_STRUCTURE_FEATURE)
            separate(list);
        const bool drawingTemplate = level > 0 && i == FIRST_STRUCTURE_FEATURE + level - 1;
        list.row({{"Bezeichn", fmt::format("{}{}", PARAGRAPH, letter('A', i))},
                  {"Inhalt", record.StructureFeature[i]},
                  {"Benennung", drawingTemplate ? "Vorlage" : featureName(labels, i)}});
    }
    separate(list);
    for (std::size_t i = 0; i < record.Hauptwert.size(); ++i)
        list.row({{"Bezeichn", fmt::format("{}{}", PARAGRAPH, letter('a', i))},
                  {"Inhalt", formatComma(record.Hauptwert[i], DECIMALS)},
                  {"Benennung", record.Alias[i]}});
    return list.finish();
}

Recordset additionalDocumentList(Connection& connection, const Files& files, std::string_view filename)
{
    constexpr std::string_view SEND_ALONG = "/J";
    Recordset rows;
    rows.Open(sql::Query("VerbindungPartZusDoku")
                  .columns({"ZusDokuDateiname", "ZusDokufilename"})
                  .distinct()
                  .where(sql::equal("Dokufilename", filename))
                  .sortedBy("ZusDokuDateiname")
                  .sortedBy("ZusDokufilename"),
              connection);
    TextList list{"ZusDokuDatum", "ZusDokuDateiname", "ZusDokuSenden", "ZusDokufilename"};
    list.with("ZusDokuCreated", FieldType::Date).with("ZusDokuFileSize", FieldType::Integer);
    for (; !rows.eof(); rows.MoveNext()) {
        std::string documentPath = rows.Text("ZusDokufilename");
        const bool sendAlong = documentPath.ends_with(SEND_ALONG);
        if (sendAlong)
            documentPath.resize(documentPath.size() - SEND_ALONG.size());
        const std::optional<FileAttributes> file = files.attribute(documentPath);
        list.row({{"ZusDokuDatum", file ? formatDateTimeOfDay(file->changed) : std::string()},
                  {"ZusDokuDateiname", rows.Text("ZusDokuDateiname")},
                  {"ZusDokuSenden", sendAlong ? "Ja" : "Nein"},
                  {"ZusDokufilename", documentPath},
                  {"ZusDokuCreated", file ? Value(file->created) : Value()},
                  {"ZusDokuFileSize", file ? Value(file->size) : Value()}});
    }
    return list.finish();
}

std::string additionalDocumentInfo(const Recordset& row)
{
    if (row.bof() || row.eof() || isNull(row.field("ZusDokuFileSize")))
        return {};
    return fmt::format("{}   {} Byte", row.Text("ZusDokuDatum"),
                       formatInteger(asInteger(row.field("ZusDokuFileSize"))));
}

} // namespace quelvarn
