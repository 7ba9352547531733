#pragma once

#include "platform/printers.h"

namespace quelvarn {

// The print queues of CUPS; no printer at all in a build without it.
class LinuxPrinters : public Printers
{
public:
    std::vector<std::string> names() const override;
    std::optional<DefaultPrinter> standard() const override;
};

} // namespace quelvarn
