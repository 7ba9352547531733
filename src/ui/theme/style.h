#pragma once

#include <QProxyStyle>

namespace quelvarn {

// The same controls on every system, with the measures of this program.
class Programmstil : public QProxyStyle
{
public:
    Programmstil();

    int pixelMetric(PixelMetric mass, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType art, const QStyleOption* option, const QSize& inhalt,
                           const QWidget* widget) const override;
    int styleHint(StyleHint frage, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* antwort) const override;
    void polish(QWidget* widget) override;
    using QProxyStyle::polish;
    void drawControl(ControlElement teil, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement teil, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl art, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QRect subElementRect(SubElement teil, const QStyleOption* option, const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap bild, const QStyleOption* option, const QWidget* widget) const override;
};

// For the application, which takes it over.
QStyle* neuerProgrammstil();
// The bar at the left of the entry that the keyboard moves.
void zeichneFokusmarke(QPainter& painter, const QRect& eintrag);

} // namespace quelvarn
