#include "scenario_runner/controls.h"
#include "scenario_runner/steps.h"
#include "scenario_runner/warnings.h"
#include "scenario_runner/world.h"

#include <filesystem>
#include <fmt/format.h>

namespace quelvarn::scenario {

namespace {

struct Vocabulary
{
    Verbs steps;
    Verbs expectations;

    Vocabulary()
    {
        addSetupVerbs(steps);
        addGestureVerbs(steps);
        addExpectations(expectations);
        addOutsideVerbs(steps, expectations);
        steps["expect"] = [this](World& world, const Step& step) {
            Step inner = step;
            inner.words.erase(inner.words.begin());
            action(expectations, inner)(world, inner);
        };
    }

    static const Action& action(const Verbs& verbs, const Step& step)
    {
        const auto found = step.words.empty() ? verbs.end() : verbs.find(step.words.front());
        if (found == verbs.end())
            throw Difference(fmt::format("\"{}\" is not known", step.words.empty() ? "" : step.words.front()));
        return found->second;
    }
};

void play(World& world, const Vocabulary& vocabulary, const Step& step)
{
    Vocabulary::action(vocabulary.steps, step)(world, step);
    world.settle();
    if (step.words.front() != "box" && step.words.front() != "give-up") {
        world.boxes.check();
        world.waits.check();
    }
    if (const auto warnings = takeWarnings(); !warnings.empty())
        throw Difference("a warning of the toolkit came" + warnings);
}

void playAll(const std::vector<Step>& steps, const std::string& pictureFolder)
{
    const Vocabulary vocabulary;
    World world(pictureFolder);
    for (const auto& step : steps) {
        try {
            play(world, vocabulary, step);
        } catch (const Skipped&) {
            throw;
        } catch (const std::exception& fault) {
            throw Difference(fmt::format("{}:{}: {}{}", step.file, step.line, fault.what(), takeWarnings()));
        }
    }
}

} // namespace

void runScenario(const std::string& file, const std::string& pictureFolder)
{
    const auto steps = readScript(file);
    playAll(steps, pictureFolder);
    if (const auto warnings = takeWarnings(); !warnings.empty())
        throw Difference(fmt::format("{}: a warning of the toolkit came at the end{}", file, warnings));
}

} // namespace quelvarn::scenario
