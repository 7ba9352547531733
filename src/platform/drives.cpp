#include "platform/drives.h"

#include "base/collation.h"

namespace quelvarn {

std::string Drive::entry() const
{
    const std::string name = toLower(letter);
    return release.empty() ? name : name + " [" + release + "]";
}

} // namespace quelvarn
