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

Programmstil::Programmstil() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

int Programmstil::pixelMetric(PixelMetric mass, const QStyleOption* option, const QWidget* widget) const
{
    switch (mass) {
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
        return QProxyStyle::pixelMetric(mass, option, widget);
    }
}

QSize Programmstil::sizeFromContents(ContentsType art, const QStyleOption* option, const QSize& inhalt,
                                     const QWidget* widget) const
{
    const auto* eintrag = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (art != CT_ItemViewItem || eintrag == nullptr)
        return QProxyStyle::sizeFromContents(art, option, inhalt, widget);
    const QStyleOptionViewItem einzeilig = ofOneLine(*eintrag);
    QSize groesse = QProxyStyle::sizeFromContents(art, &einzeilig, inhalt, widget);
    groesse.setHeight(std::max(groesse.height(), option->fontMetrics.height() + 3));
    return groesse;
}

int Programmstil::styleHint(StyleHint frage, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* antwort) const
{
    switch (frage) {
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_ItemView_ActivateItemOnSingleClick:
        return 0;
    case SH_ToolTip_WakeUpDelay:
        return 500;
    default:
        return QProxyStyle::styleHint(frage, option, widget, antwort);
    }
}

namespace {

// The box of a check box or the ring of an option: an outline, filled with the accent when it is set.
void zeichneRahmen(QPainter& painter, const QRectF& platz, const QStyleOption& option, bool rund)
{
    const Farbsatz& farben = farbsatz();
    const bool an = option.state.testFlag(QStyle::State_On);
    const bool bereit = option.state.testFlag(QStyle::State_Enabled);
    const bool hervor = option.state & (QStyle::State_MouseOver | QStyle::State_HasFocus);
    const QColor strich = !bereit ? farben.linie : an || hervor ? farben.akzent : farben.rand;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(strich, 1));
    painter.setBrush(!an ? farben.flaeche : bereit ? farben.akzent : farben.linie);
    const qreal bogen = rund ? platz.height() / 2 : 3;
    painter.drawRoundedRect(platz, bogen, bogen);
}

void zeichneMarke(QPainter& painter, const QRectF& platz, const QStyleOption& option, bool rund)
{
    if (!option.state.testFlag(QStyle::State_On))
        return;
    const QColor farbe = option.state.testFlag(QStyle::State_Enabled) ? farbsatz().flaeche : farbsatz().inaktiv;
    if (rund) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(farbe);
        painter.drawEllipse(platz.center(), platz.width() / 5, platz.width() / 5);
        return;
    }
    const qreal einheit = platz.width() / 12;
    const auto punkt = [&](qreal x, qreal y) { return platz.topLeft() + QPointF(x, y) * einheit; };
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(farbe, 1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({punkt(2.8, 6.2), punkt(5.1, 8.5), punkt(9.4, 3.8)}));
}

} // namespace

namespace {

void zeichneMarkierbares(QPainter& painter, const QStyleOption& option, bool rund)
{
    const int seite = std::min(option.rect.width(), option.rect.height()) - 1;
    QRectF platz(0, 0, seite, seite);
    platz.moveCenter(QRectF(option.rect).center());
    zeichneRahmen(painter, platz, option, rund);
    zeichneMarke(painter, platz, option, rund);
}

void zeichneKnopf(QPainter& painter, const QStyleOption& option)
{
    const Farbsatz& farben = farbsatz();
    const auto ist = [&option](QStyle::StateFlag zustand) { return option.state.testFlag(zustand); };
    const auto* knopf = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool vorgabe = knopf != nullptr && knopf->features.testFlag(QStyleOptionButton::DefaultButton);
    const bool gedrueckt = ist(QStyle::State_Sunken) || ist(QStyle::State_On);
    const bool hervor = gedrueckt || vorgabe || ist(QStyle::State_HasFocus);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(!ist(QStyle::State_Enabled) ? farben.linie : hervor ? farben.akzent : farben.rand);
    painter.setBrush(gedrueckt                                                    ? farben.akzentFlaeche
                     : ist(QStyle::State_MouseOver) && ist(QStyle::State_Enabled) ? farben.ueberfahren
                                                                                  : farben.streifen);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
}

// Fields to type in: an outline that shows the focus.
void zeichneFeld(QPainter& painter, const QRect& rand, bool bereit, bool fokus, const QColor& grund)
{
    const Farbsatz& farben = farbsatz();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(!bereit ? farben.linie : fokus ? farben.akzent : farben.rand);
    painter.setBrush(grund);
    painter.drawRoundedRect(QRectF(rand).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

void zeichneAuswahlfeld(QPainter& painter, const QStyleOptionComboBox& option, const QRect& pfeil)
{
    const Farbsatz& farben = farbsatz();
    const bool bereit = option.state.testFlag(QStyle::State_Enabled);
    const bool hervor = option.state & (QStyle::State_HasFocus | QStyle::State_On);
    zeichneFeld(painter, option.rect, bereit, bereit && hervor, option.editable ? farben.flaeche : farben.streifen);
    const QPointF mitte = QRectF(pfeil).center();
    painter.setPen(QPen(bereit ? farben.gedaempft : farben.inaktiv, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF({mitte + QPointF(-3.5, -1.5), mitte + QPointF(0, 2), mitte + QPointF(3.5, -1.5)}));
}

} // namespace

void zeichneFokusmarke(QPainter& painter, const QRect& eintrag)
{
    painter.fillRect(QRect(0, eintrag.top(), 3, eintrag.height()), farbsatz().akzent);
}

// A value with signs of a markup language is shown as it is, on every label and in every tool tip, which is a label
// of the toolkit.
void Programmstil::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (auto* label = qobject_cast<QLabel*>(widget); label != nullptr && label->textFormat() == Qt::AutoText)
        label->setTextFormat(Qt::PlainText);
}

void Programmstil::drawControl(ControlElement teil, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    if (const auto* entry = qstyleoption_cast<const QStyleOptionViewItem*>(option);
        teil == CE_ItemViewItem && entry != nullptr) {
        const QStyleOptionViewItem changed = ofOneLine(*entry);
        return QProxyStyle::drawControl(teil, &changed, painter, widget);
    }
    QProxyStyle::drawControl(teil, option, painter, widget);
}

void Programmstil::drawPrimitive(PrimitiveElement teil, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const
{
    painter->save();
    switch (teil) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
        zeichneMarkierbares(*painter, *option, teil == PE_IndicatorRadioButton);
        break;
    case PE_PanelButtonCommand:
        zeichneKnopf(*painter, *option);
        break;
    case PE_FrameLineEdit:
        zeichneFeld(*painter, option->rect, option->state.testFlag(State_Enabled),
                    option->state.testFlag(State_HasFocus), farbsatz().flaeche);
        break;
    case PE_FrameFocusRect:
        if (qobject_cast<const QAbstractItemView*>(widget) != nullptr)
            zeichneFokusmarke(*painter, option->rect);
        break; // Other controls show the focus in their outline.
    default:
        QProxyStyle::drawPrimitive(teil, option, painter, widget);
    }
    painter->restore();
}

void Programmstil::drawComplexControl(ComplexControl art, const QStyleOptionComplex* option, QPainter* painter,
                                      const QWidget* widget) const
{
    const auto* auswahl = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (art != CC_ComboBox || auswahl == nullptr)
        return QProxyStyle::drawComplexControl(art, option, painter, widget);
    painter->save();
    zeichneAuswahlfeld(*painter, *auswahl, subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget));
    painter->restore();
}

QRect Programmstil::subElementRect(SubElement teil, const QStyleOption* option, const QWidget* widget) const
{
    const QRect platz = QProxyStyle::subElementRect(teil, option, widget);
    return teil == SE_LineEditContents ? platz.adjusted(2, 0, -2, 0) : platz;
}

QIcon Programmstil::standardIcon(StandardPixmap bild, const QStyleOption* option, const QWidget* widget) const
{
    switch (bild) {
    case SP_MessageBoxInformation:
        return symbol("information");
    case SP_MessageBoxWarning:
        return symbol("warning");
    case SP_MessageBoxCritical:
        return symbol("critical");
    case SP_MessageBoxQuestion:
        return symbol("question");
    default:
        return QProxyStyle::standardIcon(bild, option, widget);
    }
}

QStyle* neuerProgrammstil()
{
    return new Programmstil;
}

} // namespace quelvarn
