#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::tools {

// The command line cannot be understood; the caller's mistake, not a fault.
class Bedienfehler : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

enum class Wert { Keiner, Noetig };

// An option of a command, "--name" or "--name WERT" (also "--name=WERT").
struct Schalter
{
    std::string_view name; // with its dashes
    Wert wert = Wert::Keiner;
};

// The words behind a command, sorted into positions and options.
class Argumente
{
public:
    // Throws Bedienfehler for an unknown option, a missing value or one too many.
    Argumente(std::span<const std::string> worte, std::span<const Schalter> bekannte);

    std::size_t anzahl() const { return stellen_.size(); }
    const std::string& stelle(std::size_t nummer) const { return stellen_.at(nummer); }
    bool gesetzt(std::string_view schalter) const { return werte_.contains(schalter); }
    std::optional<std::string> findWert(std::string_view schalter) const;
    // A whole number from `kleinster` to `groesster`; throws Bedienfehler for anything else.
    std::optional<std::int64_t> findZahl(std::string_view schalter, std::int64_t kleinster,
                                         std::int64_t groesster) const;

private:
    std::vector<std::string> stellen_;
    std::map<std::string, std::string, std::less<>> werte_;
};

// The whole text as a number; nothing when it is none.
std::optional<std::int64_t> parseGanzzahl(std::string_view text);

} // namespace quelvarn::tools
