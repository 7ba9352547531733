#include "filter/structure_section.h"

#include "base/collation.h"
#include "base/like_pattern.h"
#include "base/text.h"
#include "database/recordset_columns.h"
#include "database/recordset_lists.h"
#include "database/sql/conditions.h"
#include "filter/steps.h"
#include "filter/template_lookup.h"
#include "platform/progress.h"
#include "session/error_report.h"

#include <algorithm>
#include <fmt/format.h>
#include <functional>

namespace quelvarn {
namespace {

constexpr std::string_view LEVELS = "CDEFG";
constexpr const char* LOCKED = "SE-Filter: Strukturmerkmale";

std::string feature(std::size_t level)
{
    return fmt::format("Hauptmerkmal_{}", LEVELS[level]);
}

// A value that was edited may be a pattern.
std::string equal(std::string_view field, std::string_view value)
{
    if (value.find('*') != std::string_view::npos)
        return fmt::format("{} Like {}", field, sql::quoted(asSqlPattern(value, Wildcards::Star)));
    return fmt::format("{} = {}", field, sql::quoted(value));
}

std::string conditionOf(const StructurePath& documentPath)
{
    std::vector<std::string> parts;
    for (std::size_t level = 0; level < documentPath.size(); ++level)
        parts.push_back(equal(feature(level), documentPath[level]));
    return join(parts, " AND ");
}

std::string extended(std::string_view condition, std::string_view field, std::string_view value)
{
    return fmt::format("{} {}", condition.empty() ? "" : fmt::format("{} AND", condition), equal(field, value));
}

bool notEmpty(std::string_view text)
{
    return !text.empty();
}

bool notOnlyBlanks(std::string_view text)
{
    return !trimRightBlanks(text).empty();
}

// The boxes of a level that could not be built. Only one of them bears the page's own name.
struct FaultTexts
{
    std::string title;
    std::string text;
};

FaultTexts faultTexts(std::size_t level)
{
    if (level == LEVELS.size())
        return {"SE-Doku: Werte u. Alias Strukturmerkmale G",
                "Fehler beim Aufbau der Werte u. Alias Strukturmerkmale G!"};
    return {fmt::format("{}: Aufbau der Strukturmerkmale {}", level == 1 ? "SE-Filtern" : "SE-Doku", LEVELS[level]),
            fmt::format("Fehler beim Aufbau der Strukturmerkmale {}!", LEVELS[level])};
}

} // namespace

struct StructureSection::Branch
{
    std::vector<StructureNode> children;
    ValueList material;
    ValueList company;
    std::string drawingTemplate;
};

namespace {

std::vector<StructureNode> nodeOf(std::vector<std::string> values)
{
    std::vector<StructureNode> node;
    for (std::string& value : values)
        node.push_back({std::move(value), {}, false, {}});
    return node;
}

} // namespace

// --- operations ---

void StructureSection::nodeChosen(const StructurePath& documentPath)
{
    if (documentPath.empty() || documentPath == StrukturLetzterPfad_)
        return;
    if (!SperreBaum_) {
        tellLocked(fmt::format("Nach Auswahl\n - {} / {}\noder\n- Hauptwerte a bis g\n"
                               "ist die Auswahl weiterer Strukturmerkmale\nC bis G gesperrt!",
                               displayName(context_.session.labels, "Material"),
                               displayName(context_.session.labels, "Firma")));
        return;
    }
    if (!std::equal(documentPath.begin(), documentPath.end() - 1, StrukturLetzterPfad_.begin(),
                    StrukturLetzterPfad_.end())) {
        context_.ports().boxes.warn("SE-Doku: Auswahl Pfad", "Pfad wurde nicht eingehalten!\n\n"
                                                             "Gehen Sie über <Zurück> zum Anfang des Strukturbaumes.");
        return;
    }
    const auto [title, text] = faultTexts(documentPath.size());
    const bool ran = context_.operations.perform(Part::FilterPage, title, text, [&] {
        auto branch = readBranch(documentPath);
        if (!branch)
            return;
        const std::string field = feature(documentPath.size() - 1);
        AddFilterStep(context_, documentPath.back(), field, 0, {"", replaceAll(field, "_", " ")});
        adoptBranch(documentPath, std::move(*branch));
    });
    if (ran && StrukturLetzterPfad_ == documentPath)
        mainValues_.fillLists();
    context_.operations.changed(Part::FilterPage);
}

void StructureSection::materialChosen(std::string_view value)
{
    chooseInBranch("Material", value, SperreMaterial_);
}

void StructureSection::companyChosen(std::string_view value)
{
    chooseInBranch("Firma", value, SperreFirma_);
}

void StructureSection::chooseInBranch(std::string_view Feldname, std::string_view value, bool allowed)
{
    if (value.empty())
        return;
    if (!allowed) {
        tellLocked(fmt::format("Nach Auswahl\n- Hauptwerte a bis g\nist die Auswahl {} / {} gesperrt!",
                               displayName(context_.session.labels, "Material"),
                               displayName(context_.session.labels, "Firma")));
        return;
    }
    AddFilterStep(context_, value, Feldname, 0,
                  {fmt::format("StrukturMerk{}", Feldname), displayName(context_.session.labels, Feldname)});
    SperreBaum_ = false;
    StrukturBedingung_ = extended(StrukturBedingung_, Feldname, value);
    mainValues_.fillLists();
    context_.operations.changed(Part::FilterPage);
}

void StructureSection::adoptMainValue(std::string_view CbHW, std::string_view TextBB)
{
    if (!SperreHauptwert_ || !mainValues_.setBounds(CbHW, TextBB))
        return;
    SperreBaum_ = SperreMaterial_ = SperreFirma_ = false;
    context_.operations.changed(Part::FilterPage);
}

void StructureSection::clearMainValues()
{
    mainValues_.clearBounds();
    context_.operations.changed(Part::FilterPage);
}

void StructureSection::tellLocked(std::string_view text)
{
    context_.ports().boxes.warn(LOCKED, fmt::format("{}\n\nDie Auswahl ist wieder entsperrt, wenn\n"
                                                    "alle Filterwerte zurückgesetzt werden.",
                                                    text));
}

// --- the branch ---

// Nothing when reading was given up. Changes no state, so that a fault leaves the branch before.
std::optional<StructureSection::Branch> StructureSection::readBranch(const StructurePath& documentPath)
{
    std::vector<std::string> columns{"Material", "Firma"};
    for (std::size_t level = 0; level < LEVELS.size(); ++level)
        columns.push_back(feature(level));
    LongWork work(context_.ports().progress, "Strukturmerkmale werden gelesen ...");
    if (!loadColumns(table(), columns, std::ref(work)))
        return std::nullopt;
    const auto rows = choose(table(), conditionOf(documentPath));
    Branch branch;
    if (documentPath.size() < LEVELS.size())
        branch.children = nodeOf(distinctTexts(table(), feature(documentPath.size()), *rows, notEmpty));
    branch.material = valueList(distinctTexts(table(), "Material", *rows, notOnlyBlanks));
    branch.company = valueList(distinctTexts(table(), "Firma", *rows, notOnlyBlanks));
    branch.drawingTemplate = VorlageSuchen(context_.session.database.connection, documentPath);
    return branch;
}

void StructureSection::adoptBranch(const StructurePath& documentPath, Branch branch)
{
    if (StructureNode* node = findNode(documentPath)) {
        node->children = std::move(branch.children);
        node->read = true;
        node->statusRow = fmt::format("{}; Anz. {}; ", node->value, node->children.size());
    }
    material_ = std::move(branch.material);
    company_ = std::move(branch.company);
    if (!branch.drawingTemplate.empty())
        drawingTemplate_ = std::move(branch.drawingTemplate);
    StrukturBedingung_ = conditionOf(documentPath);
    StrukturLetzterPfad_ = documentPath;
}

StructureNode* StructureSection::findNode(const StructurePath& documentPath)
{
    StructureNode* node = &root_;
    for (const std::string& value : documentPath) {
        const auto kind = std::ranges::find_if(
            node->children, [&](const StructureNode& candidate) { return equalText(candidate.value, value); });
        if (kind == node->children.end())
            return nullptr;
        node = &*kind;
    }
    return node;
}

void StructureSection::BaumAufbauen()
{
    LongWork work(context_.ports().progress, "Strukturmerkmale werden gelesen ...");
    if (!loadColumn(table(), feature(0), std::ref(work)))
        return;
    const auto rows = choose(table(), "");
    root_ = {"Root", {}, true, nodeOf(distinctTexts(table(), feature(0), *rows, notEmpty))};
    root_.statusRow = fmt::format("Root; Anz. {}; ", root_.children.size());
    StrukturLetzterPfad_.clear();
}

void StructureSection::FilterEigenMWMitFi(std::string_view condition)
{
    LongWork work(context_.ports().progress, "Filterlisten werden gefüllt ...");
    const std::vector<std::string> columns{"Material", "Firma"};
    if (!loadColumns(table(), columns, std::ref(work)))
        return;
    const auto rows = choose(table(), condition, std::ref(work));
    if (!rows)
        return;
    material_ = valueList(distinctTexts(table(), "Material", *rows, notOnlyBlanks));
    company_ = valueList(distinctTexts(table(), "Firma", *rows, notOnlyBlanks));
}

void StructureSection::reset()
{
    root_ = {"Root", {}, false, {}};
    StrukturLetzterPfad_.clear();
    StrukturBedingung_.clear();
    material_ = company_ = {};
    mainValues_.clearLists();
    SperreHauptwert_ = true;
    SperreBaum_ = SperreMaterial_ = SperreFirma_ = !context_.state().HauptwertAktiv;
    BaumAufbauen();
    FilterEigenMWMitFi({});
    mainValues_.fillLists();
}

void StructureSection::restore(std::span<const FilterStep> steps)
{
    StructurePath documentPath;
    for (const FilterStep& step : steps) {
        if (!step.Feldname.starts_with("Hauptmerkmal_"))
            continue;
        documentPath.push_back(step.value);
        auto branch = readBranch(documentPath);
        if (!branch)
            return;
        adoptBranch(documentPath, std::move(*branch));
    }
    for (const FilterStep& step : steps) {
        if (step.Feldname.starts_with("Hauptmerkmal_"))
            continue;
        StrukturBedingung_ = extended(StrukturBedingung_, step.Feldname, step.value);
        SperreBaum_ = false;
    }
    mainValues_.fillLists();
}

} // namespace quelvarn
