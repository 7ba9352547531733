#pragma once

#include <QProxyStyle>

namespace quelvarn {

// The same controls on every system, with the measures of this program.
class Programmstil : public QProxyStyle
{
public:
    Programmstil();

    int pixelMetric(PixelMetric mass, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint frage, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* antwort) const override;
    QIcon standardIcon(StandardPixmap bild, const QStyleOption* option, const QWidget* widget) const override;
};

} // namespace quelvarn
