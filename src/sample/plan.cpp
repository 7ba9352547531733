#include "sample/plan.h"

#include "sample/random.h"
#include "sample/vocabulary.h"
#include "sample/vocabulary_machines.h"
#include "sample/vocabulary_parts.h"

#include <algorithm>

namespace quelvarn::sample {

namespace {

// Kinds of random numbers: each question asks a series of its own.
enum Question : std::uint64_t { REVISIONS = 1, LAYOUT = 2, DRAWING = 3 };

// Of a hundred documents.
constexpr std::uint64_t STANDARD_PART_SHARE = 7;
constexpr std::uint64_t BOUGHT_PART_SHARE = 4;
constexpr std::uint64_t FIXTURE_SHARE = 4;
constexpr std::uint64_t TEMPLATE_LIMIT = 24;
constexpr int PART_MINIMUM = 3; // Of a sub-assembly.
constexpr int PART_LIMIT = 7;

constexpr std::array<Section, 9> PROJECT_SEQUENCE{Section::Gear,     Section::Conveyor, Section::Conveyor,
                                                  Section::Frame,    Section::Conveyor, Section::Gear,
                                                  Section::Conveyor, Section::Frame,    Section::Conveyor};

std::span<const Machine> machines(Section section)
{
    switch (section) {
    case Section::Gear:
        return gear();
    case Section::Frame:
        return frame();
    default:
        return conveyors();
    }
}

std::size_t partCount(std::string_view selection)
{
    return static_cast<std::size_t>(std::ranges::count(selection, '|')) + 1;
}

std::string_view partNumber(std::string_view selection, std::uint64_t number)
{
    for (; number > 0; --number)
        selection.remove_prefix(selection.find('|') + 1);
    return selection.substr(0, selection.find('|'));
}

std::uint64_t countIn(const StandardSeries& series)
{
    return partCount(series.sizes) * partCount(series.lengths) * partCount(series.variant);
}

} // namespace

Plan::Plan(std::uint64_t documents, std::uint64_t start) : start_(start), free_(documents)
{
    parts_.reserve(documents * 6 / 10);
    planeTemplates(std::min(TEMPLATE_LIMIT, documents / 80));
    planStandardParts(std::min(standardPartCount(), documents * STANDARD_PART_SHARE / 100));
    planeBoughtParts(documents * BOUGHT_PART_SHARE / 100);
    planeFixtures(documents * FIXTURE_SHARE / 100);
    std::array<std::uint32_t, 3> running{};
    for (std::size_t i = 0; !full(); ++i) {
        const Section section = PROJECT_SEQUENCE[i % PROJECT_SEQUENCE.size()];
        planeProject(section, running[static_cast<std::size_t>(section)]++);
    }
}

std::uint8_t Plan::rollRevisions(std::uint32_t number) const
{
    constexpr std::array<std::uint32_t, 5> UP_TO{60, 80, 90, 95, 98}; // of 100 for 1, 2, ... revisions
    const auto draw = Random{start_, REVISIONS, number}.below(100);
    return static_cast<std::uint8_t>(1 + (std::ranges::upper_bound(UP_TO, draw) - UP_TO.begin()));
}

// The number of the item, or NONE when the register is full.
std::uint32_t Plan::append(Part part)
{
    if (full())
        return NONE;
    part.revisions = static_cast<std::uint8_t>(std::min<std::uint64_t>(part.revisions, free_));
    free_ -= part.revisions;
    parts_.push_back(part);
    return static_cast<std::uint32_t>(parts_.size() - 1);
}

void Plan::planeTemplates(std::uint64_t count)
{
    for (std::uint32_t i = 0; i < count; ++i)
        append({.project = i / static_cast<std::uint32_t>(partDesigns().size()),
                .number = static_cast<std::uint16_t>(i + 1),
                .design = static_cast<std::uint8_t>(i % partDesigns().size()),
                .section = Section::Template,
                .tab = Tab::Draft});
}

// Spread evenly over the catalog, and one drawing that shows many of them.
void Plan::planStandardParts(std::uint64_t count)
{
    for (std::uint64_t i = 0; i < count; ++i)
        standardParts_.push_back(append({.project = static_cast<std::uint32_t>(i * standardPartCount() / count),
                                         .section = Section::Standard,
                                         .tab = Tab::STbl1}));
    if (count >= MODELS_OF_OVERVIEW)
        append({.section = Section::Standard, .tab = Tab::Draft});
}

void Plan::planeBoughtParts(std::uint64_t count)
{
    for (std::uint32_t i = 0; i < count; ++i)
        boughtParts_.push_back(append({.project = i,
                                       .design = static_cast<std::uint8_t>(i % boughtSeries().size()),
                                       .section = Section::Bought,
                                       .tab = Tab::STbl2}));
}

// Each fixture is an assembly, its base plate and a drawing.
void Plan::planeFixtures(std::uint64_t count)
{
    constexpr int BASE_PLATE = 10;
    constexpr int DRAWING_ADDED = 90;
    constexpr std::array<std::uint16_t, 3> NUMBERS{0, BASE_PLATE, DRAWING_ADDED};
    std::uint32_t parent = NONE;
    for (std::uint32_t i = 0; i < count; ++i) {
        const auto number = NUMBERS[i % NUMBERS.size()];
        const auto part = append({.project = i / static_cast<std::uint32_t>(NUMBERS.size()),
                                  .parent = number == 0 ? NONE : parent,
                                  .number = number,
                                  .design = static_cast<std::uint8_t>(i / NUMBERS.size() % fixtures().size()),
                                  .section = Section::Fixture,
                                  .tab = Tab::STbl3});
        parent = number == 0 ? part : parent;
    }
}

const Machine& Plan::machine(Section section, std::uint32_t project) const
{
    return Random{start_, LAYOUT, static_cast<std::uint64_t>(section), project}.out(machines(section));
}

void Plan::planeProject(Section section, std::uint32_t project)
{
    const Part plant{.project = project, .section = section, .tab = Tab::Assemb};
    const auto top = planeModel(plant, 95);
    if (section == Section::Gear && top != NONE)
        gear_.push_back(top);
    int number = 0;
    for (const Assembly& drawingTemplate : machine(section, project).groups) {
        number += 100;
        if (drawingTemplate.name.empty())
            continue;
        Part group = plant;
        group.parent = top;
        group.number = static_cast<std::uint16_t>(number);
        const auto index = planeModel(group, 90);
        for (std::size_t u = 0; u < drawingTemplate.subassemblies.size(); ++u)
            if (!drawingTemplate.subassemblies[u].empty())
                planeSubassembly(group, index, number + 10 * static_cast<int>(u + 1), drawingTemplate);
    }
}

// With its drawing, by the given chance of 100.
std::uint32_t Plan::planeModel(Part part, std::uint32_t withDrawing)
{
    part.revisions = rollRevisions(static_cast<std::uint32_t>(parts_.size()));
    const auto index = append(part);
    planeDrawing(index, withDrawing);
    return index;
}

void Plan::planeSubassembly(const Part& group, std::uint32_t parent, int number, const Assembly& drawingTemplate)
{
    Random random{start_, LAYOUT, static_cast<std::uint64_t>(group.section), group.project,
                  static_cast<std::uint64_t>(number)};
    Part below = group;
    below.parent = parent;
    below.number = static_cast<std::uint16_t>(number);
    const auto index = planeModel(below, 80);
    const auto count = random.between(PART_MINIMUM, PART_LIMIT);
    for (int i = 1; i <= count; ++i) {
        const bool sheetMetal = random.percent(drawingTemplate.sheetMetalHeavy ? 60 : 15);
        const auto forms = sheetMetal                       ? sheetMetalDesigns()
                           : group.section == Section::Gear ? gearDesigns()
                                                            : partDesigns();
        Part part = below;
        part.parent = index;
        part.number = static_cast<std::uint16_t>(number + i);
        part.design = static_cast<std::uint8_t>(random.below(static_cast<std::uint32_t>(forms.size())));
        part.tab = sheetMetal ? Tab::SheetM : Tab::Part;
        planeModel(part, 60);
    }
    if (!drawingTemplate.welded || index == NONE)
        return;
    Part weldment = parts_[index];
    weldment.parent = index;
    weldment.tab = Tab::Weld;
    planeDrawing(append(weldment), 70);
}

void Plan::planeDrawing(std::uint32_t model, std::uint32_t probability)
{
    if (model == NONE || !Random{start_, DRAWING, model}.percent(probability))
        return;
    Part drawing = parts_[model];
    drawing.parent = model;
    drawing.tab = Tab::Draft;
    append(drawing);
}

std::uint64_t standardPartCount()
{
    std::uint64_t count = 0;
    for (const StandardSeries& series : standardSeries())
        count += countIn(series);
    return count;
}

StandardPart standardPart(std::uint64_t number)
{
    std::size_t position = 0;
    for (; number >= countIn(standardSeries()[position]); ++position)
        number -= countIn(standardSeries()[position]);
    const StandardSeries& series = standardSeries()[position];
    const auto variants = partCount(series.variant);
    const auto lengths = partCount(series.lengths);
    return {.series = position,
            .size = partNumber(series.sizes, number / variants / lengths),
            .length = partNumber(series.lengths, number / variants % lengths),
            .variant = partNumber(series.variant, number % variants),
            .firstVariant = number % variants == 0};
}

} // namespace quelvarn::sample
