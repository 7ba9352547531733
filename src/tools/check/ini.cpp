#include "tools/check/ini.h"

#include "base/collation.h"
#include "base/number_format.h"
#include "database/base_rows.h"
#include "database/document_types.h"
#include "tools/check/findings.h"

#include <algorithm>
#include <fmt/format.h>
#include <map>
#include <string>

namespace quelvarn::tools {

namespace {

struct Row
{
    std::string field1;
    std::string field2;
    std::string field3;
    Value field4;
    Value field5;
};

using Rows = std::vector<Row>;

Rows liesIni(Engine& engine)
{
    Rows rows;
    const auto reader = findRows(engine, "Ini", {"Feld1", "Feld2", "Feld3", "Feld4", "Feld5"});
    while (reader && reader->next())
        rows.push_back({asText(reader->value(0)), asText(reader->value(1)), asText(reader->value(2)), reader->value(3),
                        reader->value(4)});
    return rows;
}

Rows group(const Rows& all, std::string_view owner, std::string_view name, std::string_view field3 = {})
{
    Rows result;
    std::ranges::copy_if(all, std::back_inserter(result), [&](const Row& row) {
        return equalText(row.field1, owner) && equalText(row.field2, name) &&
               (field3.empty() || equalText(row.field3, field3));
    });
    return result;
}

bool isOne(std::string_view text, std::initializer_list<std::string_view> allowed)
{
    return std::ranges::find(allowed, text) != allowed.end();
}

void checkZeitintervall(const Rows& all, Findings& findings)
{
    constexpr double LIMIT = 65535; // milliseconds
    Rows rows = group(all, INSTALLATION, "WriteDB", "Timeinterval");
    if (rows.empty())
        rows = group(all, INSTALLATION, "WriteDB", "Zeitinterval");
    if (rows.empty() || !isNumeric(rows.front().field4))
        findings.warn("Ini: WriteDB/Timeinterval fehlt oder ist keine Zahl; es wird nicht regelmäßig geprüft.");
    else if (asNumber(rows.front().field4) > LIMIT)
        findings.fault("Ini: WriteDB/Timeinterval ist größer als 65535.");
}

void checkStamp(const Rows& all, Findings& findings)
{
    for (const DocumentType& type : DOCUMENT_TYPES)
        if (type.stampNumber != 0 && group(all, INSTALLATION, "WriteDB", type.stamp).empty())
            findings.warn(
                fmt::format("Ini: WriteDB/{} fehlt; Änderungen an {} werden nicht bemerkt.", type.stamp, type.table));
}

// What a start complains of is a fault; what it adds or mends without a word a warning.
void checkInstallation(const Rows& all, Findings& findings)
{
    for (const auto name : {"Bezeichnung", "Tabelle"})
        if (group(all, INSTALLATION, name).empty())
            findings.fault(fmt::format("Ini: es gibt keine Zeile '{}'.", name));
    if (group(all, INSTALLATION, "Plot", "Pfadname").empty())
        findings.fault("Ini: die Zeile Plot/Pfadname fehlt.");
    for (const auto option : {"CheckInOut", "Forward"})
        if (group(all, INSTALLATION, "OnOff", option).empty())
            findings.fault(fmt::format("Ini: die Zeile OnOff/{} fehlt.", option));
    const auto offline = group(all, INSTALLATION, "Plot", "Offline");
    if (offline.empty() || !isOne(asText(offline.front().field4), {"Talvik", "Druvik"}))
        findings.warn("Ini: Plot/Offline fehlt oder nennt weder Talvik noch Druvik.");
    const auto printers = group(all, INSTALLATION, "Plot", "Printer").size();
    if (printers == 0)
        findings.warn("Ini: die zehn Zeilen Plot/Printer fehlen.");
    else if (printers != 10)
        findings.fault(fmt::format("Ini: es gibt {} Zeilen Plot/Printer, nicht zehn.", printers));
    const auto pdf = group(all, INSTALLATION, "Plot", "PDF").size();
    if (pdf == 0)
        findings.warn("Ini: die Zeile Plot/PDF fehlt.");
    else if (pdf > 1)
        findings.fault(fmt::format("Ini: es gibt {} Zeilen Plot/PDF, nicht eine.", pdf));
    checkZeitintervall(all, findings);
    checkStamp(all, findings);
}

void checkRights(const Rows& all, std::string_view user, Findings& findings)
{
    const auto rows = group(all, user, "Berechtigung");
    if (rows.empty()) // A user whose rights come with his first start.
        return;
    const bool seesSomething = std::ranges::any_of(rows, [](const Row& z) { return asNumber(z.field4) == 1; });
    if (!seesSomething)
        findings.fault(fmt::format("Ini: {} darf keinen Status sehen; jede Abfrage scheitert.", user));
    for (const Row& row : rows)
        if (!isNumeric(row.field4) || !isNumeric(row.field5) || asNumber(row.field5) < 0 || asNumber(row.field5) > 6)
            findings.warn(fmt::format("Ini: {}, Berechtigung/{}: '{}' und '{}' sind keine Rechte.", user, row.field3,
                                      asText(row.field4), asText(row.field5)));
}

void checkUser(const Rows& all, std::string_view user, Findings& findings)
{
    const auto reminded = [&](std::string_view what) {
        findings.warn(fmt::format("Ini: {}, {}: der Wert wird beim Start ersetzt.", user, what));
    };
    checkRights(all, user, findings);
    for (const Row& row : group(all, user, "Treeview"))
        if (!isOne(asText(row.field4), {"0", "1"}))
            reminded("Treeview/" + row.field3);
    for (const Row& row : group(all, user, "Starttabelle"))
        if (!isOne(row.field3, {"Bauteile", "Blechteile", "Baugruppen", "Zeichnungen", "Schweißteile"}))
            reminded("Starttabelle");
    for (const Row& row : group(all, user, "OfflineDaten"))
        if (!isOne(toUpper(row.field3), {"PLOT", "PDF", "TIFF", "EXPORT", "DIRECTMAIL"}) ||
            !isOne(asText(row.field4), {"(1)", "(2)"}) || !isOne(toUpper(asText(row.field5)), {"EXPORT", "BOM"}))
            reminded("OfflineDaten");
    for (const Row& row : group(all, user, "ZipDaten"))
        if (!isOne(row.field3, {"Normal", "Maximum", "Minimum", "Schnell"}) || asText(row.field4).empty())
            reminded("ZipDaten");
}

} // namespace

void checkIni(Engine& engine, Findings& findings)
{
    const Rows all = liesIni(engine);
    checkInstallation(all, findings);
    std::map<std::string, std::string> user;
    for (const Row& row : all)
        if (!equalText(row.field1, INSTALLATION))
            user.try_emplace(sortKey(row.field1), row.field1);
    for (const auto& [_, name] : user)
        checkUser(all, name, findings);
    findings.row(fmt::format("Ini: {} Anwender", user.size()));
}

} // namespace quelvarn::tools
