#pragma once

#include <QGroupBox>

#include <functional>

namespace quelvarn {

class Appearance;

// How the program looks on this computer: colours, and whether its window can be resized.
class AppearanceFrame : public QGroupBox
{
    Q_OBJECT

public:
    explicit AppearanceFrame(Appearance& appearance);

    std::function<void()> changed;

private:
    Appearance& appearance_;
};

} // namespace quelvarn
