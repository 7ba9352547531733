#pragma once

#include <QSize>

class QScreen;

namespace quelvarn {

constexpr int TWIPS_PER_INCH = 1440;

// Twips as the pixels that widgets count in, at the screen's logical resolution.
QSize fromTwips(int width, int height, const QScreen& screen);

} // namespace quelvarn
