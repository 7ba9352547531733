#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>

namespace quelvarn::sample {

// Numbers that look random and are the same on every system for the same start.
class Zufall
{
public:
    // Each set of numbers starts a series of its own, so that any part of a register can be made by itself.
    Zufall(std::initializer_list<std::uint64_t> start)
    {
        for (const auto zahl : start)
            stand_ = mische(stand_ ^ (zahl + 0x9E3779B97F4A7C15));
    }

    std::uint32_t unter(std::uint32_t grenze)
    {
        stand_ += 0x9E3779B97F4A7C15;
        return static_cast<std::uint32_t>(((mische(stand_) >> 32) * grenze) >> 32);
    }
    std::int64_t zwischen(std::int64_t von, std::int64_t bis)
    {
        return von + unter(static_cast<std::uint32_t>(bis - von + 1));
    }
    bool prozent(std::uint32_t wahrscheinlichkeit) { return unter(100) < wahrscheinlichkeit; }

    template <typename Liste> const auto& aus(const Liste& liste)
    {
        return liste[unter(static_cast<std::uint32_t>(std::size(liste)))];
    }
    // One of the parts of "a|b|c".
    std::string_view teil(std::string_view auswahl)
    {
        std::uint32_t anzahl = 1;
        for (const char zeichen : auswahl)
            anzahl += zeichen == '|' ? 1 : 0;
        for (auto ueberspringen = unter(anzahl); ueberspringen > 0; --ueberspringen)
            auswahl.remove_prefix(auswahl.find('|') + 1);
        return auswahl.substr(0, auswahl.find('|'));
    }

private:
    static constexpr std::uint64_t mische(std::uint64_t x)
    {
        x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9;
        x = (x ^ (x >> 27)) * 0x94D049BB133111EB;
        return x ^ (x >> 31);
    }
    std::uint64_t stand_ = 0;
};

} // namespace quelvarn::sample
