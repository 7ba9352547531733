#include "app/end_request.h"

namespace quelvarn {

// Windows sends no signals to a program with windows: a logout comes through Qt's session manager.
std::unique_ptr<QObject> watchEndSignals(std::function<void()>)
{
    return nullptr;
}

} // namespace quelvarn
