#include "platform/drives.h"

#include "base/collation.h"

namespace quelvarn {

std::string Laufwerk::eintrag() const
{
    const std::string letter = toLower(buchstabe);
    return freigabe.empty() ? letter : letter + " [" + freigabe + "]";
}

} // namespace quelvarn
