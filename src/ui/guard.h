#pragma once

#include <concepts>
#include <functional>
#include <utility>

namespace quelvarn {

class Meldungen;

// Runs what a gesture starts, so that nothing is ever thrown into the event loop: a fault goes to the error report,
// and the wish to end the program to the one who runs it.
class Waechter
{
public:
    Waechter(Meldungen& meldungen, std::function<void()> programmEnde);
    ~Waechter();
    Waechter(const Waechter&) = delete;
    Waechter& operator=(const Waechter&) = delete;

    void fuehreAus(const std::function<void()>& geste) noexcept;

    // The one in force; every slot of the program runs through it.
    static Waechter& aktuell();
    static bool gibtEs();

private:
    Meldungen& meldungen_;
    std::function<void()> programmEnde_;
    Waechter* vorheriger_;
};

// Calls a slot with the arguments of its signal, or with none when it takes none.
template <typename Slot, typename... Argumente> void rufe(Slot& slot, const Argumente&... argumente)
{
    if constexpr (std::invocable<Slot&, const Argumente&...>)
        slot(argumente...);
    else
        slot();
}

// The same as a slot that runs guarded.
template <typename Slot> auto bewacht(Slot slot)
{
    return [slot = std::move(slot)](auto... argumente) mutable -> void requires(
                                                                   std::invocable<Slot&, decltype(argumente)...> ||
                                                                   std::invocable<Slot&>)
    {
        Waechter::aktuell().fuehreAus([&] { rufe(slot, argumente...); });
    };
}

} // namespace quelvarn
