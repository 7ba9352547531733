#pragma once

#include <cstddef>
#include <string_view>

namespace quelvarn {

// Shows how far a long piece of work has come, and lets a person give it up. One piece at a time.
class Fortschrittsanzeige
{
public:
    virtual ~Fortschrittsanzeige() = default;
    virtual void beginne(std::string_view text) = 0;
    // False when the person has given up. What is quick is never shown.
    virtual bool schritt(std::size_t getan, std::size_t gesamt) = 0;
    virtual void beende() = 0;
};

// Work that nobody watches.
class StilleAnzeige final : public Fortschrittsanzeige
{
public:
    void beginne(std::string_view) override {}
    bool schritt(std::size_t, std::size_t) override { return true; }
    void beende() override {}
};

// One piece of work on the display, for as long as it lives. Callable as the Fortschritt of a recordset.
class LangeArbeit
{
public:
    LangeArbeit(Fortschrittsanzeige& anzeige, std::string_view text) : anzeige_(anzeige) { anzeige_.beginne(text); }
    ~LangeArbeit() { anzeige_.beende(); }
    LangeArbeit(const LangeArbeit&) = delete;
    LangeArbeit& operator=(const LangeArbeit&) = delete;

    bool operator()(std::size_t getan, std::size_t gesamt)
    {
        aufgegeben_ = aufgegeben_ || !anzeige_.schritt(getan, gesamt);
        return !aufgegeben_;
    }
    bool aufgegeben() const { return aufgegeben_; }

private:
    Fortschrittsanzeige& anzeige_;
    bool aufgegeben_ = false;
};

} // namespace quelvarn
