#pragma once

#include <concepts>
#include <functional>
#include <utility>

namespace quelvarn {

class Boxes;

// Runs what a gesture starts, so that nothing is ever thrown into the event loop: a fault goes to the error report,
// and the wish to end the program to the one who runs it.
class SlotGuard
{
public:
    SlotGuard(Boxes& boxes, std::function<void()> programEnd);
    ~SlotGuard();
    SlotGuard(const SlotGuard&) = delete;
    SlotGuard& operator=(const SlotGuard&) = delete;

    void execute(const std::function<void()>& gesture) noexcept;

    // The one in force; every slot of the program runs through it.
    static SlotGuard& current();
    static bool existsIn();

private:
    Boxes& boxes_;
    std::function<void()> programEnd_;
    SlotGuard* previous_;
};

// A slot that runs guarded, with the arguments of its signal, or with none when it takes none.
template <typename Slot> class GuardedSlot
{
public:
    explicit GuardedSlot(Slot slot) : slot_(std::move(slot)) {}

    template <typename... Arguments>
    requires(std::invocable<Slot&, const Arguments&...> || std::invocable<Slot&>) void
    operator()(const Arguments&... arguments)
    {
        if constexpr (std::invocable<Slot&, const Arguments&...>)
            SlotGuard::current().execute([&] { slot_(arguments...); });
        else
            SlotGuard::current().execute([&] { slot_(); });
    }

private:
    Slot slot_;
};

template <typename Slot> GuardedSlot<Slot> guardedSlot(Slot slot)
{
    return GuardedSlot<Slot>(std::move(slot));
}

} // namespace quelvarn
