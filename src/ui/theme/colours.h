#pragma once

#include <QColor>
#include <QPalette>

namespace quelvarn {

// The colours of one appearance, by what they are for.
struct ColourSet
{
    bool dark;
    QColor area;    // Pages
    QColor strip;   // Head lines, column heads, status bars
    QColor row2;    // Every second row of a grid
    QColor line;    // Separators
    QColor outline; // Outlines of fields
    QColor text;
    QColor muted; // Captions beside values
    QColor inactive;
    QColor accent;
    QColor accentDeep; // The accent under the mouse
    QColor accentArea; // Behind the page that is shown, pressed buttons
    QColor hovered;    // Under the mouse
    QColor selection;
    QColor warning;
    QColor indicator; // Fill of a change indicator
    QColor indicatorText;
};

const ColourSet& lightColourSet();
const ColourSet& darkColourSet();
// The one that is applied to the program now.
const ColourSet& colourSet();

QPalette palette(const ColourSet& colours);

// 1 to 21, as accessibility guidelines measure it.
double contrast(const QColor& a, const QColor& b);
// The same hue, darker or lighter until it stands out from the ground.
QColor readable(const QColor& colour, const QColor& reason, double minimumContrast);

// A colour of the core (RGB) as text and as a filled dot on the page of today's appearance.
QColor statusText(unsigned rgb);
QColor statusDot(unsigned rgb);

} // namespace quelvarn
