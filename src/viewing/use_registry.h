#pragma once

#include <string_view>

namespace quelvarn {

inline constexpr int NUTZUNG_DURCHSICHT = 2; // Shown in a viewer.

// Tells the office who has which file open.
class Nutzungsregister
{
public:
    virtual ~Nutzungsregister() = default;
    virtual void trageEin(std::string_view filename, int code) = 0;
    virtual void trageAus(std::string_view filename, int code) = 0;
};

// Keeps nothing.
class KeinNutzungsregister final : public Nutzungsregister
{
public:
    void trageEin(std::string_view, int) override {}
    void trageAus(std::string_view, int) override {}
};

} // namespace quelvarn
