#include "ui/theme/colours.h"

#include "ui/theme/appearance.h"

#include <algorithm>
#include <cmath>

namespace quelvarn {

const ColourSet& lightColourSet()
{
    static const ColourSet colours{
        .dark = false,
        .area = QColor(0xFFFFFF),
        .strip = QColor(0xF3F4F7),
        .row2 = QColor(0xF8F9FB),
        .line = QColor(0xDCE0E6),
        .outline = QColor(0xB9C0CB),
        .text = QColor(0x1B1F26),
        .muted = QColor(0x5C6675),
        .inactive = QColor(0x9DA5B1),
        .accent = QColor(0x1A66DB),
        .accentDeep = QColor(0x1453B5),
        .accentArea = QColor(0xE4EEFD),
        .hovered = QColor(0xEDEFF3),
        .selection = QColor(0xD3E4FC),
        .warning = QColor(0xB42318),
        .indicator = QColor(0xF5B301),
        .indicatorText = QColor(0x1B1F26),
    };
    return colours;
}

const ColourSet& darkColourSet()
{
    static const ColourSet colours{
        .dark = true,
        .area = QColor(0x262B32),
        .strip = QColor(0x1F2329),
        .row2 = QColor(0x2A3038),
        .line = QColor(0x3A424D),
        .outline = QColor(0x566070),
        .text = QColor(0xE6E9EE),
        .muted = QColor(0xA3ACB9),
        .inactive = QColor(0x6B7583),
        .accent = QColor(0x7AB0FF),
        .accentDeep = QColor(0x9CC4FF),
        .accentArea = QColor(0x2A3D5B),
        .hovered = QColor(0x323942),
        .selection = QColor(0x2F4F7D),
        .warning = QColor(0xFF9B8E),
        .indicator = QColor(0xF5B301),
        .indicatorText = QColor(0x1B1F26),
    };
    return colours;
}

const ColourSet& colourSet()
{
    return Appearance::darkApplied() ? darkColourSet() : lightColourSet();
}

QPalette palette(const ColourSet& colours)
{
    QPalette result;
    result.setColor(QPalette::Window, colours.area);
    result.setColor(QPalette::WindowText, colours.text);
    result.setColor(QPalette::Base, colours.area);
    result.setColor(QPalette::AlternateBase, colours.row2);
    result.setColor(QPalette::Text, colours.text);
    result.setColor(QPalette::Button, colours.dark ? QColor(0x343B45) : QColor(0xF3F4F7));
    result.setColor(QPalette::ButtonText, colours.text);
    result.setColor(QPalette::BrightText, colours.warning);
    result.setColor(QPalette::PlaceholderText, colours.muted);
    result.setColor(QPalette::Highlight, colours.selection);
    result.setColor(QPalette::HighlightedText, colours.text);
    result.setColor(QPalette::Link, colours.accent);
    result.setColor(QPalette::LinkVisited, colours.accent);
    result.setColor(QPalette::ToolTipBase, colours.dark ? QColor(0x3A424D) : QColor(0x2A2F38));
    result.setColor(QPalette::ToolTipText, QColor(0xF4F5F7));
    result.setColor(QPalette::Light, colours.dark ? colours.outline : QColor(0xFFFFFF));
    result.setColor(QPalette::Midlight, colours.line);
    result.setColor(QPalette::Mid, colours.outline);
    result.setColor(QPalette::Dark, colours.outline);
    result.setColor(QPalette::Shadow, colours.dark ? QColor(0x14171B) : QColor(0x8A93A1));
    for (const auto textRole : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        result.setColor(QPalette::Disabled, textRole, colours.inactive);
    result.setColor(QPalette::Disabled, QPalette::Base, colours.strip);
    result.setColor(QPalette::Disabled, QPalette::Highlight, colours.line);
    return result;
}

namespace {

double luminance(const QColor& colour)
{
    const auto share = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * share(colour.redF()) + 0.7152 * share(colour.greenF()) + 0.0722 * share(colour.blueF());
}

} // namespace

double contrast(const QColor& a, const QColor& b)
{
    const auto [darker, heller] = std::minmax({luminance(a), luminance(b)});
    return (heller + 0.05) / (darker + 0.05);
}

QColor readable(const QColor& colour, const QColor& reason, double minimumContrast)
{
    const float step = luminance(reason) > 0.2 ? -0.02F : 0.02F;
    float hue = 0;
    float saturation = 0;
    float lightness = 0;
    colour.getHslF(&hue, &saturation, &lightness);
    QColor result = colour;
    while (contrast(result, reason) < minimumContrast && lightness + step >= 0 && lightness + step <= 1) {
        lightness += step;
        result = QColor::fromHslF(hue, saturation, lightness);
    }
    return result;
}

namespace {

// The full tones of the standard colours are too loud for text.
QColor covered(unsigned rgb)
{
    const QColor colour(rgb);
    if (colour.saturation() == 0)
        return colourSet().text;
    return QColor::fromHslF(colour.hslHueF(), std::min(colour.hslSaturationF(), 0.78F), colour.lightnessF());
}

} // namespace

QColor statusText(unsigned rgb)
{
    return readable(covered(rgb), colourSet().area, 4.5);
}

QColor statusDot(unsigned rgb)
{
    return readable(covered(rgb), colourSet().area, 2.2);
}

} // namespace quelvarn
