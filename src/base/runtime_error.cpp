#include "base/runtime_error.h"

#include <utility>

namespace quelvarn {

Laufzeitfehler::Laufzeitfehler(int nummer, std::string quelle, const std::string& beschreibung)
    : std::runtime_error(beschreibung), nummer_(nummer), quelle_(std::move(quelle))
{}

} // namespace quelvarn
