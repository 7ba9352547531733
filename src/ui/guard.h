#pragma once

#include <functional>
#include <type_traits>
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

// A slot that runs guarded, with the arguments of its signal or with none.
template <typename Slot> auto bewacht(Slot slot)
{
    return [slot = std::move(slot)](auto... argumente) mutable {
        Waechter::aktuell().fuehreAus([&] {
            if constexpr (std::is_invocable_v<Slot&, decltype(argumente)...>)
                slot(argumente...);
            else
                slot();
        });
    };
}

} // namespace quelvarn
