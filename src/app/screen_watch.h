#pragma once

namespace quelvarn {

// While it lives, the toolkit's word that there is no screen ends the program with a sentence in German and exit code
// 1, where the toolkit itself would have it abort.
class ScreenWatch
{
public:
    ScreenWatch();
    ~ScreenWatch();
    ScreenWatch(const ScreenWatch&) = delete;
    ScreenWatch& operator=(const ScreenWatch&) = delete;
};

} // namespace quelvarn
