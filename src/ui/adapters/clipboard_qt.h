#pragma once

#include "platform/clipboard.h"

namespace quelvarn {

// The clipboard of the desktop.
class QtClipboard final : public Clipboard
{
public:
    std::string text() const override;
    void setText(std::string_view text) override;
};

} // namespace quelvarn
