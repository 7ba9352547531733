#include "sample/documents.h"

#include "sample/random.h"
#include "sample/vocabulary.h"
#include "sample/vocabulary_machines.h"
#include "sample/vocabulary_parts.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn::sample {

namespace {

enum Question : std::uint64_t { NAMES = 20, STATUS_DRAW, PERSONS, TIMES };

std::string revisionLabel(std::uint32_t kind, int revision)
{
    if (kind == 3)
        return fmt::format("{:02}", revision);
    if (revision == 0)
        return "0";
    if (kind == 1)
        return std::to_string(revision);
    return std::string(1, static_cast<char>((kind == 2 ? 'a' : 'A') + revision - 1));
}

constexpr std::array<std::string_view, STATUS_COUNT> OLD_STATUSES{"5", "5", "5", "5", "4", "3"};

// Of a hundred: what the newest revision of a document is.
int newestStatus(std::uint32_t draw)
{
    constexpr std::array<std::uint32_t, STATUS_COUNT> UP_TO{8, 21, 29, 78, 97, 100};
    return static_cast<int>(std::ranges::upper_bound(UP_TO, draw) - UP_TO.begin());
}

DateTime workingTime(DateTime day, Random& random)
{
    constexpr std::int64_t FROM = std::int64_t{6} * 3600 + 1800;
    constexpr std::int64_t UNTIL = std::int64_t{17} * 3600;
    return day.startOfDay().plusSeconds(random.between(FROM, UNTIL));
}

bool isFile(const Part& part)
{
    return part.tab <= Tab::Weld;
}

} // namespace

DateTime keyDate()
{
    return DateTime::from({2025, 12, 19, 17, 0, 0});
}

std::uint32_t DocumentNames::model(std::uint32_t part) const
{
    const Part& entry = plan_.part(part);
    return entry.tab == Tab::Draft && entry.parent != NONE ? entry.parent : part;
}

std::string DocumentNames::documentName(std::uint32_t part) const
{
    const Part& t = plan_.part(part);
    switch (t.section) {
    case Section::Conveyor:
    case Section::Gear:
    case Section::Frame: {
        const bool welded = plan_.part(model(part)).tab == Tab::Weld;
        return fmt::format("{}-{:03}{}", project(part), t.number, welded ? "S" : "");
    }
    case Section::Standard: {
        if (t.tab == Tab::Draft)
            return "NT-Übersicht";
        const StandardPart standard = standardPart(t.project);
        const StandardSeries& series = standardSeries()[standard.series];
        return fmt::format("{} - {}{}{}{}", series.standard, series.prefix, standard.size,
                           standard.length.empty() ? "" : fmt::format("x{}", standard.length),
                           standard.firstVariant ? "" : fmt::format("-{}", standard.variant));
    }
    case Section::Bought:
        return fmt::format("{} {}-{:04}", boughtSeries()[t.design].abbreviation,
                           Random{plan_.start(), NAMES, part}.part(boughtSeries()[t.design].sizes), t.project + 1);
    case Section::Fixture:
        return fmt::format("VR-{:04}-{:03}", t.project + 1, t.number);
    case Section::Template:
        break;
    }
    return fmt::format("VL-{:03}", t.number);
}

std::string DocumentNames::project(std::uint32_t part) const
{
    const Part& t = plan_.part(part);
    switch (t.section) {
    case Section::Conveyor:
        return fmt::format("FA-{}", 1001 + t.project);
    case Section::Gear:
        return fmt::format("GT-{:04}", 301 + t.project);
    case Section::Frame:
        return fmt::format("RA-{:04}", 701 + t.project);
    case Section::Standard:
        return "Normteile";
    case Section::Bought:
        return "Zukaufteile";
    case Section::Fixture:
        return "Betriebsmittel";
    case Section::Template:
        break;
    }
    return "Vorlagen";
}

// Each project keeps to one way of counting revisions.
std::string DocumentNames::revisionName(std::uint32_t part, int revision) const
{
    const Part& t = plan_.part(part);
    Random random{plan_.start(), NAMES, static_cast<std::uint64_t>(t.section), t.project};
    return revisionLabel(t.section <= Section::Frame ? random.below(4) : 0, revision);
}

std::string_view DocumentNames::extension(std::uint32_t part) const
{
    const Part& t = plan_.part(part);
    if (isFile(t))
        return DOCUMENT_TYPES[static_cast<std::size_t>(t.tab)].extension;
    if (t.tab != Tab::STbl3)
        return "par";
    return t.number == 0 ? "asm" : t.number == 10 ? "par" : "dft";
}

std::string DocumentNames::stemName(const Part& part) const
{
    const auto number = static_cast<std::uint32_t>(&part - plan_.parts().data());
    return part.section == Section::Template
               ? fmt::format("{} {}", documentName(number), partDesigns()[part.design].name)
               : documentName(number);
}

std::string DocumentNames::fileName(std::uint32_t part, int revision) const
{
    std::string stem = stemName(plan_.part(part));
    std::ranges::replace(stem, '/', '_'); // Windows has no such file names.
    if (revision > 0)
        stem += "_" + revisionName(part, revision);
    return fmt::format("{}.{}", stem, extension(part));
}

std::string DocumentNames::filename(std::uint32_t part, int revision) const
{
    return fmt::format("{}{}\\{}", FOLDER, folder(plan_.part(part)), fileName(part, revision));
}

std::string DocumentNames::folder(const Part& part) const
{
    const auto number = static_cast<std::uint32_t>(&part - plan_.parts().data());
    const auto group = [&] {
        return part.number < 100 ? "" : fmt::format("\\{} {}", part.number / 100 * 100, groupName(part));
    };
    switch (part.section) {
    case Section::Conveyor:
        return fmt::format("Förderanlagen\\{} {}{}", project(number), plan_.machine(part.section, part.project).name,
                           group());
    case Section::Gear:
        return fmt::format("Getriebe\\{} {}", project(number), plan_.machine(part.section, part.project).name);
    case Section::Frame:
        return fmt::format("Rahmen\\{}", project(number));
    case Section::Standard: {
        const StandardSeries& series = standardSeries()[standardPart(part.project).series];
        std::string standard(series.standard);
        std::ranges::replace(standard, ' ', '_');
        return fmt::format("Normteile\\{}\\{}", series.group, standard);
    }
    case Section::Bought: {
        std::string maker(boughtSeries()[part.design].maker);
        std::ranges::replace(maker, ' ', '_');
        return fmt::format("Zukaufteile\\{}", maker);
    }
    case Section::Fixture:
        return fmt::format("Vorrichtungen\\VR-{:04}", part.project + 1);
    case Section::Template:
        break;
    }
    return "Vorlagen\\Zeichnungen";
}

std::string_view DocumentNames::groupName(const Part& part) const
{
    return plan_.machine(part.section, part.project).groups[part.number / 100 - 1].name;
}

// Old revisions are void or frozen; a drawing stands where its model stands.
int DocumentNames::status(std::uint32_t part, int revision) const
{
    const auto source = model(part);
    const Part& t = plan_.part(source);
    Random random{plan_.start(), STATUS_DRAW, source, static_cast<std::uint64_t>(revision)};
    if (revision + 1 < t.revisions)
        return random.out(OLD_STATUSES)[0] - '0';
    if (t.tab >= Tab::STbl1)
        return random.percent(90) ? 4 : 3;
    return newestStatus(random.below(100));
}

Value DocumentNames::author(std::uint32_t part) const
{
    const Part& t = plan_.part(part);
    Random random{plan_.start(), PERSONS, static_cast<std::uint64_t>(t.section), t.project,
                  static_cast<std::uint64_t>(t.number / 100)};
    return std::string(random.out(DESIGNERS));
}

Value DocumentNames::editor(std::uint32_t part, int revision) const
{
    Random random{plan_.start(), PERSONS, part, static_cast<std::uint64_t>(revision)};
    const auto draw = random.below(100);
    if (draw < 60)
        return author(part);
    if (draw < 90)
        return std::string(random.out(DESIGNERS));
    return draw < 96 ? Value{} : Value{std::string(draw < 98 ? "" : " ")};
}

DateTime DocumentNames::created(std::uint32_t part, int revision) const
{
    const auto source = model(part);
    const Part& t = plan_.part(source);
    constexpr std::int64_t DAYS_OF_THE_REGISTER = std::int64_t{26} * 365;
    Random projectTime{plan_.start(), TIMES, static_cast<std::uint64_t>(t.section), t.project};
    Random random{plan_.start(), TIMES, source};
    const auto begin = keyDate().plusDays(-DAYS_OF_THE_REGISTER + projectTime.between(0, DAYS_OF_THE_REGISTER - 200));
    const auto days = t.number / 10 + random.between(0, 20) + revision * random.between(30, 260);
    return std::min(workingTime(begin.plusDays(days), random), keyDate().plusDays(revision - 40));
}

// What is being worked on was changed lately.
DateTime DocumentNames::changed(std::uint32_t part, int revision) const
{
    Random random{plan_.start(), TIMES, part, static_cast<std::uint64_t>(revision)};
    const DateTime begin = created(part, revision);
    const int state = status(part, revision);
    if (state == 1 || state == 2)
        return workingTime(keyDate().plusDays(-random.between(0, 30)), random);
    return std::max(begin.plusSeconds(600), workingTime(begin.plusDays(random.between(0, 15)), random));
}

} // namespace quelvarn::sample
