#include "app/end_signals.h"

#include <utility>

namespace quelvarn {

EndSignals::EndSignals(std::function<void()> asked) : asked_(std::move(asked)) {}

EndSignals::~EndSignals() = default;

} // namespace quelvarn
