#include "ui/theme/style.h"

#include "ui/theme/colours.h"
#include "ui/theme/icons.h"
#include "ui/value_text.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>

namespace quelvarn {

namespace {

// Every entry of a list, tree or combo has one line, whatever its value has.
QStyleOptionViewItem ofOneLine(const QStyleOptionViewItem& entry)
{
    QStyleOptionViewItem changed = entry;
    changed.text = oneLine(entry.text);
    return changed;
}

} // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return 8;
    case PM_FocusFrameHMargin: // Left and right of the text of an entry
    case PM_SplitterWidth:
        return 5;
    case PM_ToolBarIconSize:
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
        return 16;
    case PM_TreeViewIndentation:
        return 16;
    case PM_ScrollBarExtent:
        return 12;
    case PM_TabBarTabHSpace:
        return 4;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize ProgramStyle::sizeFromContents(ContentsType kind, const QStyleOption* option, const QSize& content,
                                     const QWidget* widget) const
{
    const auto* entry = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (kind != CT_ItemViewItem || entry == nullptr)
        return QProxyStyle::sizeFromContents(kind, option, content, widget);
    const QStyleOptionViewItem oneLine = ofOneLine(*entry);
    QSize size = QProxyStyle::sizeFromContents(kind, &oneLine, content, widget);
    size.setHeight(std::max(size.height(), option->fontMetrics.height() + 3));
    return size;
}

int ProgramStyle::styleHint(StyleHint ask, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* answer) const
{
    switch (ask) {
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_ItemView_ActivateItemOnSingleClick:
        return 0;
    case SH_ToolTip_WakeUpDelay:
        return 500;
    default:
        return QProxyStyle::styleHint(ask, option, widget, answer);
    }
}

namespace {

// The box of a check box or the ring of an option: an outline, filled with the accent when it is set.
void drawFrame(QPainter& painter, const QRectF& place, const QStyleOption& option, bool round)
{
    const ColourSet& colours = colourSet();
    const bool on = option.state.testFlag(QStyle::State_On);
    const bool ready = option.state.testFlag(QStyle::State_Enabled);
    const bool out = option.state & (QStyle::State_MouseOver | QStyle::State_HasFocus);
    const QColor stroke = !ready ? colours.line : on || out ? colours.accent : colours.outline;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(stroke, 1));
    painter.setBrush(!on ? colours.area : ready ? colours.accent : colours.line);
    const qreal arc = round ? place.height() / 2 : 3;
    painter.drawRoundedRect(place, arc, arc);
}

void drawMark(QPainter& painter, const QRectF& place, const QStyleOption& option, bool round)
{
    if (!option.state.testFlag(QStyle::State_On))
        return;
    const QColor colour = option.state.testFlag(QStyle::State_Enabled) ? colourSet().area : colourSet().inactive;
    if (round) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawEllipse(place.center(), place.width() / 5, place.width() / 5);
        return;
    }
    const qreal unit = place.width() / 12;
    const auto point = [&](qreal x, qreal y) { return place.topLeft() + QPointF(x, y) * unit; };
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, 1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({point(2.8, 6.2), point(5.1, 8.5), point(9.4, 3.8)}));
}

} // namespace

namespace {

void drawMarkable(QPainter& painter, const QStyleOption& option, bool round)
{
    const int page = std::min(option.rect.width(), option.rect.height()) - 1;
    QRectF place(0, 0, page, page);
    place.moveCenter(QRectF(option.rect).center());
    drawFrame(painter, place, option, round);
    drawMark(painter, place, option, round);
}

void drawButton(QPainter& painter, const QStyleOption& option)
{
    const ColourSet& colours = colourSet();
    const auto is = [&option](QStyle::StateFlag state) { return option.state.testFlag(state); };
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool defaultValue = button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
    const bool pressed = is(QStyle::State_Sunken) || is(QStyle::State_On);
    const bool out = pressed || defaultValue || is(QStyle::State_HasFocus);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(!is(QStyle::State_Enabled) ? colours.line : out ? colours.accent : colours.outline);
    painter.setBrush(pressed                                                    ? colours.accentArea
                     : is(QStyle::State_MouseOver) && is(QStyle::State_Enabled) ? colours.hovered
                                                                                : colours.strip);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
}

// Fields to type in: an outline that shows the focus.
void drawField(QPainter& painter, const QRect& margin, bool ready, bool focus, const QColor& reason)
{
    const ColourSet& colours = colourSet();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(!ready ? colours.line : focus ? colours.accent : colours.outline);
    painter.setBrush(reason);
    painter.drawRoundedRect(QRectF(margin).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

void drawChoiceField(QPainter& painter, const QStyleOptionComboBox& option, const QRect& arrow)
{
    const ColourSet& colours = colourSet();
    const bool ready = option.state.testFlag(QStyle::State_Enabled);
    const bool out = option.state & (QStyle::State_HasFocus | QStyle::State_On);
    drawField(painter, option.rect, ready, ready && out, option.editable ? colours.area : colours.strip);
    const QPointF middle = QRectF(arrow).center();
    painter.setPen(QPen(ready ? colours.muted : colours.inactive, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(
        QPolygonF({middle + QPointF(-3.5, -1.5), middle + QPointF(0, 2), middle + QPointF(3.5, -1.5)}));
}

} // namespace

void drawFocusMark(QPainter& painter, const QRect& entry)
{
    painter.fillRect(QRect(0, entry.top(), 3, entry.height()), colourSet().accent);
}

// A value with signs of a markup language is shown as it is, on every label and in every tool tip, which is a label
// of the toolkit.
void ProgramStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (auto* label = qobject_cast<QLabel*>(widget); label != nullptr && label->textFormat() == Qt::AutoText)
        label->setTextFormat(Qt::PlainText);
}

void ProgramStyle::drawControl(ControlElement part, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    if (const auto* entry = qstyleoption_cast<const QStyleOptionViewItem*>(option);
        part == CE_ItemViewItem && entry != nullptr) {
        const QStyleOptionViewItem changed = ofOneLine(*entry);
        return QProxyStyle::drawControl(part, &changed, painter, widget);
    }
    QProxyStyle::drawControl(part, option, painter, widget);
}

void ProgramStyle::drawPrimitive(PrimitiveElement part, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const
{
    painter->save();
    switch (part) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
        drawMarkable(*painter, *option, part == PE_IndicatorRadioButton);
        break;
    case PE_PanelButtonCommand:
        drawButton(*painter, *option);
        break;
    case PE_FrameLineEdit:
        drawField(*painter, option->rect, option->state.testFlag(State_Enabled), option->state.testFlag(State_HasFocus),
                  colourSet().area);
        break;
    case PE_FrameFocusRect:
        if (qobject_cast<const QAbstractItemView*>(widget) != nullptr)
            drawFocusMark(*painter, option->rect);
        break; // Other controls show the focus in their outline.
    default:
        QProxyStyle::drawPrimitive(part, option, painter, widget);
    }
    painter->restore();
}

void ProgramStyle::drawComplexControl(ComplexControl kind, const QStyleOptionComplex* option, QPainter* painter,
                                      const QWidget* widget) const
{
    const auto* selection = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (kind != CC_ComboBox || selection == nullptr)
        return QProxyStyle::drawComplexControl(kind, option, painter, widget);
    painter->save();
    drawChoiceField(*painter, *selection, subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget));
    painter->restore();
}

QRect ProgramStyle::subElementRect(SubElement part, const QStyleOption* option, const QWidget* widget) const
{
    const QRect place = QProxyStyle::subElementRect(part, option, widget);
    return part == SE_LineEditContents ? place.adjusted(2, 0, -2, 0) : place;
}

QIcon ProgramStyle::standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const
{
    switch (picture) {
    case SP_MessageBoxInformation:
        return icon("information");
    case SP_MessageBoxWarning:
        return icon("warning");
    case SP_MessageBoxCritical:
        return icon("critical");
    case SP_MessageBoxQuestion:
        return icon("question");
    default:
        return QProxyStyle::standardIcon(picture, option, widget);
    }
}

QStyle* newProgramStyle()
{
    return new ProgramStyle;
}

} // namespace quelvarn
