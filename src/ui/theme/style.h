#pragma once

#include <QProxyStyle>

namespace quelvarn {

// The same controls on every system, with the measures of this program.
class ProgramStyle : public QProxyStyle
{
public:
    ProgramStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType kind, const QStyleOption* option, const QSize& content,
                           const QWidget* widget) const override;
    int styleHint(StyleHint ask, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;
    void polish(QWidget* widget) override;
    using QProxyStyle::polish;
    void drawControl(ControlElement part, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement part, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl kind, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QRect subElementRect(SubElement part, const QStyleOption* option, const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const override;
};

// For the application, which takes it over.
QStyle* newProgramStyle();
// The bar at the left of the entry that the keyboard moves.
void drawFocusMark(QPainter& painter, const QRect& entry);

} // namespace quelvarn
