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

// A slot that runs guarded, with the arguments of its signal, or with none when it takes none.
template <typename Slot> class Bewacht
{
public:
    explicit Bewacht(Slot slot) : slot_(std::move(slot)) {}

    template <typename... Argumente>
    requires(std::invocable<Slot&, const Argumente&...> || std::invocable<Slot&>) void
    operator()(const Argumente&... argumente)
    {
        if constexpr (std::invocable<Slot&, const Argumente&...>)
            Waechter::aktuell().fuehreAus([&] { slot_(argumente...); });
        else
            Waechter::aktuell().fuehreAus([&] { slot_(); });
    }

private:
    Slot slot_;
};

template <typename Slot> Bewacht<Slot> bewacht(Slot slot)
{
    return Bewacht<Slot>(std::move(slot));
}

} // namespace quelvarn
