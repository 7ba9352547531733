#pragma once

#include <QSize>

class QScreen;

namespace quelvarn {

constexpr int TWIPS_JE_ZOLL = 1440;

// Twips as the pixels that widgets count in, at the screen's logical resolution.
QSize ausTwips(int breite, int hoehe, const QScreen& bildschirm);

} // namespace quelvarn
