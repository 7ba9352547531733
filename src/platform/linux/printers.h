#pragma once

#include "platform/printers.h"

namespace quelvarn {

// The print queues of CUPS; no printer at all in a build without it.
class LinuxDrucker : public Drucker
{
public:
    std::vector<std::string> namen() const override;
    std::optional<Standarddrucker> standard() const override;
};

} // namespace quelvarn
