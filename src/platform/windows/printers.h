#pragma once

#include "platform/printers.h"

namespace quelvarn {

// The printers of the print spooler. Only the spooler is asked, never a driver, whose own code could show boxes.
class WindowsPrinters : public Printers
{
public:
    std::vector<std::string> names() const override;
    // A printer that keeps silent is told by its name alone.
    std::optional<DefaultPrinter> standard() const override;
};

} // namespace quelvarn
