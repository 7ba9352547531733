#include "sample/document_row.h"

#include "sample/documents.h"
#include "sample/random.h"
#include "sample/vocabulary.h"
#include "sample/vocabulary_machines.h"
#include "sample/vocabulary_parts.h"

#include <charconv>
#include <cmath>
#include <fmt/format.h>

namespace quelvarn::sample {

namespace {

enum Question : std::uint64_t { CONTENT = 40, PER_REVISION };

Value text(std::string_view value)
{
    return std::string(value);
}

// Registers are filled in by hand: the chance that a field is missing, half of it as Null.
Value often(Random& random, std::uint32_t ofHundred, std::string_view value)
{
    const auto draw = random.below(100);
    if (draw < ofHundred && !value.empty())
        return text(value);
    const auto rest = draw % 8;
    return rest < 4 ? Value{} : text(rest < 7 ? "" : " ");
}

double number(std::string_view digits)
{
    double result = 0;
    const auto comma = digits.find(',');
    std::string text(digits);
    if (comma != std::string_view::npos)
        text[comma] = '.';
    std::from_chars(text.data(), text.data() + text.size(), result);
    return result;
}

// As a person would type it: 0.15, not 0.15000000000000002.
double rounded(double value)
{
    return std::round(value * 1000) / 1000;
}

constexpr std::string_view ADDITIONS = "|||| links| rechts| oben| unten| kurz| lang| 2-teilig";

std::string_view format(std::uint16_t number, Random& random)
{
    return random.part(number % 100 == 0 ? "A0|A1|A1 quer" : number % 10 == 0 ? "A1|A2" : "A4|A4|A3|A2");
}

} // namespace

const Design* Documents::findDesign(const Part& part) const
{
    switch (part.tab) {
    case Tab::Part:
        return &(part.section == Section::Gear ? gearDesigns() : partDesigns())[part.design];
    case Tab::SheetM:
        return &sheetMetalDesigns()[part.design];
    case Tab::Assemb:
        return &assemblies()[part.number == 0 ? 0 : 1];
    case Tab::Weld:
        return &weldments()[0];
    case Tab::STbl3:
        return &fixtures()[part.design];
    default:
        return part.section == Section::Template ? &partDesigns()[part.design] : nullptr;
    }
}

std::string Documents::title(std::uint32_t part) const
{
    const auto source = model(part);
    const Part& t = plan_.part(source);
    if (t.section == Section::Standard) {
        if (t.tab == Tab::Draft)
            return "Normteilübersicht";
        const StandardPart standard = standardPart(t.project);
        const StandardSeries& series = standardSeries()[standard.series];
        return fmt::format("{} {}{}{}", series.title, series.prefix, standard.size,
                           standard.length.empty() ? "" : fmt::format("x{}", standard.length));
    }
    if (t.section == Section::Bought)
        return fmt::format("{} {}", boughtSeries()[t.design].title, documentName(source).substr(3));
    if (t.section == Section::Fixture)
        return fmt::format("{}{}", fixtures()[t.design].name,
                           t.number == 0    ? ""
                           : t.number == 10 ? " Grundplatte"
                                            : " Zusammenstellung");
    if (t.section == Section::Template)
        return fmt::format("Vorlage {}", partDesigns()[t.design].name);
    if (t.tab == Tab::Weld)
        return title(t.parent) + " geschweißt";
    if (t.tab != Tab::Assemb)
        return fmt::format("{}{}", findDesign(t)->name, Random{plan_.start(), CONTENT, source}.part(ADDITIONS));
    const Machine& machine = plan_.machine(t.section, t.project);
    if (t.number == 0)
        return std::string(machine.name);
    return std::string(t.number % 100 == 0 ? groupName(t)
                                           : machine.groups[t.number / 100 - 1].subassemblies[t.number % 100 / 10 - 1]);
}

Value Documents::material(std::uint32_t part) const
{
    const Part& t = plan_.part(part);
    Random random{plan_.start(), CONTENT, part, 1};
    if (t.section == Section::Standard)
        return text(standardPart(t.project).variant);
    const Design* design = t.tab == Tab::Draft ? nullptr : findDesign(t);
    return design ? often(random, 92, random.part(design->material)) : Value{};
}

Value Documents::topic(const Part& part) const
{
    if (part.section > Section::Frame)
        return {};
    return text(plan_.machine(part.section, part.project).name);
}

std::string_view Documents::category(const Part& part, Random& random) const
{
    switch (part.section) {
    case Section::Standard:
        return "Normteil";
    case Section::Bought:
        return "Kaufteil";
    case Section::Fixture:
        return "Vorrichtung";
    case Section::Template:
        return "QV_Vorlage";
    default:
        return random.part(part.tab == Tab::Draft ? "Fertigungszeichnung|Fertigungszeichnung|Angebotszeichnung"
                                                  : "Fertigungsteil|Fertigungsteil|Versuchsteil|Ersatzteil");
    }
}

// The five levels of the structure tree. A template leaves the levels below its own empty, never Null.
void Documents::appendFeatures(const Part& part, Random& random, std::vector<Value>& values) const
{
    values.push_back(often(random, 70, random.part("Eigenfertigung|Eigenfertigung|Lohnfertigung|Zukauf")));
    values.push_back(often(random, 65, random.part("Einzelteil|Verschleißteil|Vorzugsteil|Ersatzteil")));
    std::array<std::string_view, STRUCTURE_FEATURES> features{};
    if (part.section == Section::Standard) {
        const StandardPart standard = standardPart(part.project);
        const StandardSeries& series = standardSeries()[standard.series];
        features = {"Normteile", series.group, series.kind, series.standard, standard.variant};
    } else if (part.section == Section::Bought) {
        const BoughtSeries& series = boughtSeries()[part.design];
        features = {"Kaufteile", series.group, random.part("Katalogteil|Sonderausführung"), series.maker, ""};
    } else if (const Design* design = findDesign(part)) {
        for (std::size_t i = 0; i < features.size(); ++i)
            features[i] = random.part(design->features[i]);
    }
    const std::size_t levels =
        part.section == Section::Template ? 1 + part.number % STRUCTURE_FEATURES : STRUCTURE_FEATURES;
    for (std::size_t i = 0; i < features.size(); ++i) {
        if (part.section == Section::Template)
            values.push_back(text(i < levels ? features[i] : ""));
        else
            values.push_back(features[i].empty() || random.percent(4) ? (random.percent(60) ? Value{} : text(""))
                                                                      : text(features[i]));
    }
}

void Documents::appendMainValues(const Part& part, Random& random, std::vector<Value>& values) const
{
    std::array<std::string_view, MAIN_VALUES> alias{};
    const Design* design = findDesign(part);
    for (std::size_t i = 0; i < MAIN_VALUES; ++i) {
        Value value = random.percent(50) ? Value{} : Value{0.0};
        if (part.section == Section::Standard && i < 2) {
            const StandardPart standard = standardPart(part.project);
            const auto digits = i == 0 ? standard.size : standard.length;
            alias[i] = i == 0 ? standardSeries()[standard.series].alias : digits.empty() ? "" : "Länge";
            value = digits.empty() ? value : Value{number(digits)};
        } else if (part.section == Section::Bought && i == 0) {
            alias[i] = boughtSeries()[part.design].alias;
            value = number(random.part(boughtSeries()[part.design].sizes));
        } else if (design && !design->sizes[i].alias.empty()) {
            const Measure& metric = design->sizes[i];
            alias[i] = metric.alias;
            value = rounded(metric.from + metric.step * random.below(static_cast<std::uint32_t>(metric.levels)));
        }
        values.push_back(std::move(value));
    }
    for (const auto name : alias)
        values.push_back(name.empty() ? (random.percent(60) ? Value{} : text("")) : text(name));
}

void Documents::row(std::uint32_t part, int revision, std::vector<Value>& values) const
{
    const Part& t = plan_.part(part);
    const Part& m = plan_.part(model(part));
    Random random{plan_.start(), PER_REVISION, part, static_cast<std::uint64_t>(revision)};
    values.clear();
    for (const auto& name :
         {documentName(part), revisionName(part, revision), fileName(part, revision), filename(part, revision)})
        values.emplace_back(name);
    values.emplace_back(std::int64_t{status(part, revision)});
    values.push_back(often(random, 96, project(part)));
    values.push_back(material(part));
    values.emplace_back(created(part, revision));
    values.push_back(author(part));
    values.emplace_back(changed(part, revision));
    values.push_back(editor(part, revision));
    values.push_back(revision == 0 ? often(random, 50, "Ersterstellung") : often(random, 80, random.part(CHANGES)));
    values.push_back(changed(part, revision).plusSeconds(random.between(30, 900)));
    values.push_back(often(random, 97, title(part)));
    values.push_back(topic(t));
    values.push_back(often(random, 35, random.part(MANAGER)));
    values.push_back(often(random, 80, random.part(COMPANIES)));
    const auto kind = category(t, random);
    values.push_back(t.section == Section::Template ? text(kind) : often(random, 85, kind));
    const Design* design = findDesign(m);
    values.push_back(often(random, 55, design ? design->keyword : ""));
    values.push_back(often(random, 20, random.part(COMMENTS)));
    values.push_back(
        often(random, 60,
              fmt::format("{}Vorlagen\\Büro_{}.{}", FOLDER, t.tab == Tab::Draft ? "A3" : "Modell", extension(part))));
    // What a drawing shows is sorted like the model.
    Random features{plan_.start(), CONTENT, model(part), 2};
    appendFeatures(m, features, values);
    appendMainValues(m, features, values);
    if (t.tab == Tab::Draft)
        values.push_back(often(random, 95, format(m.number, random)));
}

} // namespace quelvarn::sample
