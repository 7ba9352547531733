#include "sample/links.h"

#include "sample/document_row.h"
#include "sample/random.h"
#include "sample/sample_register.h"
#include "sample/vocabulary.h"
#include "sample/vocabulary_machines.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn::sample {

namespace {

enum Question : std::uint64_t { STANDARD_PARTS = 60, SECOND_MODEL, ADDITION, TIFF, GEAR_CHOICE };

using Row = std::vector<Value>;

// The revision of a part that this revision of its assembly was built with: the newest with the newest.
int builtInRevision(const Part& assembly, int revision, const Part& part)
{
    if (revision + 1 >= assembly.revisions)
        return part.revisions - 1;
    return (part.revisions - 1) * revision / (assembly.revisions - 1);
}

void appendDocument(Row& row, const Documents& documents, std::uint32_t part, int revision)
{
    row.emplace_back(documents.documentName(part));
    row.emplace_back(documents.revisionName(part, revision));
    row.emplace_back(documents.fileName(part, revision));
    row.emplace_back(documents.filename(part, revision));
}

// One row for each revision of the assembly.
void buildIn(const Documents& documents, std::uint32_t assembly, std::uint32_t part, RowSink& sink)
{
    const Part& parent = documents.plan().part(assembly);
    for (int revision = 0; revision < parent.revisions; ++revision) {
        Row row;
        appendDocument(row, documents, assembly, revision);
        row.emplace_back(documents.filename(part, builtInRevision(parent, revision, documents.plan().part(part))));
        sink.row(row);
    }
}

void buildInStandardAndBoughtParts(const Documents& documents, std::uint32_t assembly, RowSink& sink)
{
    const Plan& plan = documents.plan();
    Random random{plan.start(), STANDARD_PARTS, assembly};
    const auto take = [&](const std::vector<std::uint32_t>& selection, std::int64_t count) {
        std::vector<std::uint32_t> chosen;
        for (; count > 0 && !selection.empty(); --count)
            chosen.push_back(random.out(selection));
        std::ranges::sort(chosen);
        chosen.erase(std::unique(chosen.begin(), chosen.end()), chosen.end());
        for (const auto part : chosen)
            buildIn(documents, assembly, part, sink);
    };
    take(plan.standardParts(), random.between(2, 6));
    take(plan.boughtParts(), random.between(0, 2));
}

// The assembly that a part goes into: a weldment takes the place of its model.
std::uint32_t placeOfUse(const Plan& plan, const Part& part)
{
    return part.tab == Tab::Weld ? plan.part(part.parent).parent : part.parent;
}

void modelRow(const Documents& documents, std::uint32_t document, int revision, std::uint32_t model, RowSink& sink)
{
    const int modelRevision = std::min(revision, documents.plan().part(model).revisions - 1);
    Row row;
    appendDocument(row, documents, document, revision);
    row.emplace_back(documents.fileName(model, modelRevision));
    row.emplace_back(documents.filename(model, modelRevision));
    sink.row(row);
}

} // namespace

void writeZusBauPart(const Documents& documents, RowSink& sink)
{
    const Plan& plan = documents.plan();
    for (std::uint32_t i = 0; i < plan.parts().size(); ++i) {
        const Part& part = plan.part(i);
        if (part.tab == Tab::Assemb && part.number % 100 != 0)
            buildInStandardAndBoughtParts(documents, i, sink);
        const bool singlePart = part.tab == Tab::Part || part.tab == Tab::SheetM || part.tab == Tab::Weld ||
                                (part.tab == Tab::STbl3 && documents.extension(i) == "par");
        if (singlePart && placeOfUse(plan, part) != NONE)
            buildIn(documents, placeOfUse(plan, part), i, sink);
    }
}

void writeZusBauSubAss(const Documents& documents, RowSink& sink)
{
    constexpr int DRIVE_UNIT = 110;
    const Plan& plan = documents.plan();
    for (std::uint32_t i = 0; i < plan.parts().size(); ++i) {
        const Part& part = plan.part(i);
        if (part.tab != Tab::Assemb)
            continue;
        if (part.parent != NONE)
            buildIn(documents, part.parent, i, sink);
        if (part.section == Section::Conveyor && part.number == DRIVE_UNIT && !plan.gear().empty())
            buildIn(documents, i, Random{plan.start(), GEAR_CHOICE, i}.out(plan.gear()), sink);
    }
}

void writeVerbindungDraftPart(const Documents& documents, RowSink& sink)
{
    const Plan& plan = documents.plan();
    forEachDocument(documents, [&](std::uint32_t i, int revision) {
        const Part& part = plan.part(i);
        if (part.tab == Tab::Draft && part.section == Section::Standard)
            for (std::size_t k = 0; k < MODELS_OF_OVERVIEW; ++k)
                modelRow(documents, i, revision, plan.standardParts()[k], sink);
        const bool drawing = part.tab == Tab::Draft || (part.tab == Tab::STbl3 && documents.extension(i) == "dft");
        if (!drawing || part.parent == NONE)
            return;
        modelRow(documents, i, revision, part.parent, sink);
        const auto assembly = plan.part(part.parent).parent;
        if (assembly != NONE && Random{plan.start(), SECOND_MODEL, i}.percent(6))
            modelRow(documents, i, revision, assembly, sink);
    });
}

void writeVerbindungWeldAssemb(const Documents& documents, RowSink& sink)
{
    forEachDocument(documents, [&](std::uint32_t i, int revision) {
        const Part& part = documents.plan().part(i);
        if (part.tab == Tab::Weld)
            modelRow(documents, i, revision, part.parent, sink);
    });
}

std::vector<AdditionalDocument> additionalDocuments(const Documents& documents, std::uint32_t part, int revision)
{
    constexpr std::string_view KINDS =
        "Datenblatt.pdf|Prüfprotokoll.pdf|Berechnung.xls|Montageanleitung.doc|Hinweise.txt|Schaltplan.pdf|"
        "Skizze.tif";
    Random random{documents.plan().start(), ADDITION, part, static_cast<std::uint64_t>(revision)};
    std::vector<AdditionalDocument> result;
    if (!random.percent(6))
        return result;
    for (auto count = random.between(1, 3); count > 0; --count) {
        AdditionalDocument candidate{.fileName = fmt::format("{} {}", documents.documentName(part), random.part(KINDS)),
                                     .filename = {},
                                     .sendAlong = random.percent(40)};
        candidate.filename =
            fmt::format("{}Zusatzdokumente\\{}\\{}", FOLDER, documents.project(part), candidate.fileName);
        if (std::ranges::none_of(result, [&](const auto& d) { return d.fileName == candidate.fileName; }))
            result.push_back(std::move(candidate));
    }
    return result;
}

void writeVerbindungPartZusDoku(const Documents& documents, RowSink& sink)
{
    forEachDocument(documents, [&](std::uint32_t part, int revision) {
        if (documents.plan().part(part).tab > Tab::Weld)
            return;
        for (const auto& addition : additionalDocuments(documents, part, revision))
            sink.row(Row{documents.filename(part, revision), addition.fileName,
                         addition.filename + (addition.sendAlong ? "/J" : "")});
    });
}

std::string tiffFile(const Documents& documents, std::uint32_t part, int revision)
{
    const bool exists = documents.plan().part(part).tab == Tab::Draft &&
                        Random{documents.plan().start(), TIFF, part, static_cast<std::uint64_t>(revision)}.percent(30);
    const std::string name = documents.fileName(part, revision);
    return exists ? fmt::format("{}TIFF\\{}tif", FOLDER, name.substr(0, name.size() - 3)) : "";
}

void writeTIFFTabelle(const Documents& documents, RowSink& sink)
{
    forEachDocument(documents, [&](std::uint32_t part, int revision) {
        const std::string file = tiffFile(documents, part, revision);
        if (!file.empty())
            sink.row(Row{file.substr(file.rfind('\\') + 1), file});
    });
}

} // namespace quelvarn::sample
