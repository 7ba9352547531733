#include "database/postgres_cluster.h"
#include "scenario_runner/disk.h"
#include "scenario_runner/steps.h"
#include "scenario_runner/world.h"

#include <filesystem>
#include <fmt/format.h>
#include <functional>
#include <map>

namespace quelvarn::scenario {

namespace {

namespace fs = std::filesystem;

#ifdef __linux__
void serverVerb(World&, const Step& step)
{
    auto* cluster = test::PostgresCluster::find();
    auto* server = cluster != nullptr ? cluster->server() : nullptr;
    if (server == nullptr)
        throw Skipped("there is no PostgreSQL server that may be stopped");
    const std::map<std::string, std::function<void()>, std::less<>> verbs{
        {"stop", [&] { server->stop(); }},  {"kill", [&] { server->kill(); }},     {"start", [&] { server->start(); }},
        {"hang", [&] { server->pause(); }}, {"resume", [&] { server->resume(); }},
    };
    const auto verb = verbs.find(step.word(1));
    if (verb == verbs.end())
        throw Difference(fmt::format("a server cannot \"{}\"", step.word(1)));
    verb->second();
}
#else
void serverVerb(World&, const Step&)
{
    throw Skipped("a server can be stopped on Linux only");
}
#endif

void lockVerb(World& world, const Step& step)
{
    const std::string mode = step.has(1) ? step.word(1) : "all";
    if (mode != "all" && mode != "writing")
        throw Difference(fmt::format("a register cannot be locked for \"{}\"", mode));
    world.lockRegister(mode);
}

void diskVerb(World& world, const Step& step)
{
    if (step.word(1) == "full")
        fillDisk(world.realPath(step.word(2)));
    else if (step.word(1) == "free")
        fillDisk({});
    else
        throw Difference(fmt::format("a disk cannot be \"{}\"", step.word(1)));
}

// As if the share had gone: the place is empty, and nobody made it so on purpose.
void takeAway(World& world, const Step& step)
{
    const auto place = world.realPath(step.word(1));
    fs::rename(place, world.awayPlace(step.word(1)));
}

void bringBack(World& world, const Step& step)
{
    fs::rename(world.awayPlace(step.word(1)), world.realPath(step.word(1)));
}

void programVerb(World& world, const Step& step)
{
    if (step.word(1) == "start")
        world.startRealProgram();
    else if (step.word(1) == "end")
        world.realProgram().end(step.word(2));
    else
        throw Difference(fmt::format("\"program {}\" is not known", step.word(1)));
}

void programIs(World& world, const Step& step)
{
    const auto& program = world.realProgram();
    if (program.running() != (step.word(1) == "running"))
        throw Difference::between("the program", step.word(1), program.running() ? "running" : "ended");
    const auto code = program.exitCode();
    const auto found = code ? std::to_string(*code) : std::string("none");
    if (step.has(2) && step.word(2) != found)
        throw Difference::between("exit code of the program", step.word(2), found);
}

} // namespace

void addOutsideVerbs(Verbs& steps, Verbs& expectations)
{
    steps["server"] = serverVerb;
    steps["lock"] = lockVerb;
    steps["unlock"] = [](World& world, const Step&) { world.unlockRegister(); };
    steps["disk"] = diskVerb;
    steps["take-away"] = takeAway;
    steps["bring-back"] = bringBack;
    steps["rename"] = [](World& world, const Step& step) {
        fs::rename(world.realPath(step.word(1)), world.realPath(step.word(2)));
    };
    steps["copy"] = [](World& world, const Step& step) {
        fs::copy(world.realPath(step.word(1)), world.realPath(step.word(2)),
                 fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    };
    steps["program"] = programVerb;
    expectations["program"] = programIs;
}

} // namespace quelvarn::scenario
