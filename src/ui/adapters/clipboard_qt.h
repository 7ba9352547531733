#pragma once

#include "platform/clipboard.h"

namespace quelvarn {

// The clipboard of the desktop.
class QtZwischenablage final : public Zwischenablage
{
public:
    std::string text() const override;
    void setzeText(std::string_view text) override;
};

} // namespace quelvarn
