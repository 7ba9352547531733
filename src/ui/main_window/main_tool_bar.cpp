#include "ui/main_window/main_tool_bar.h"

#include "ui/controls/tool_bar.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "ui/theme/icons.h"

#include <QMenu>
#include <QResizeEvent>
#include <QToolButton>

namespace quelvarn {

namespace {

constexpr std::array<std::string_view, ANZAHL_WERKZEUGE> SYMBOLE{"edit", "insert",  "place",   "eye",
                                                                 "down", "forward", "message", "quit"};

// In this order they do without their captions when there is no room.
constexpr std::array ENTBEHRLICH{Werkzeug::Weiterleiten, Werkzeug::Nachrichten,   Werkzeug::SmartViewer,
                                 Werkzeug::Beenden,      Werkzeug::PlazierenZchn, Werkzeug::EinfuegenBaugr};
constexpr int ABSTAND = 2;
constexpr int RAND = 8;

std::size_t stelle(Werkzeug werkzeug)
{
    return static_cast<std::size_t>(werkzeug);
}

} // namespace

ToolbarMidiFrm::ToolbarMidiFrm(MainWindow& modell) : modell_(modell)
{
    setObjectName(QStringLiteral("ToolbarMidiFrm"));
    setMovable(false);
    setIconSize({16, 16});
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setContextMenuPolicy(Qt::PreventContextMenu);
    fuegeDehnerHinzu(*this);
    for (int i = 0; i < ANZAHL_WERKZEUGE; ++i) {
        const auto werkzeug = static_cast<Werkzeug>(i);
        if (werkzeug == Werkzeug::Extras || werkzeug == Werkzeug::Beenden)
            trenner_[werkzeug == Werkzeug::Beenden] = addSeparator();
        baueKnopf(werkzeug);
    }
    knoepfe_[stelle(Werkzeug::Beenden)]->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
}

void ToolbarMidiFrm::baueKnopf(Werkzeug werkzeug)
{
    const Werkzeugknopf& knopf = modell_.knopf(werkzeug);
    auto* aktion =
        fuegeKnopfHinzu(*this, {knopf.beschriftung, knopf.beschriftung, knopf.tooltip, SYMBOLE[stelle(werkzeug)]});
    knoepfe_[stelle(werkzeug)] = aktion;
    if (werkzeug == Werkzeug::Extras)
        return baueExtras(*aktion);
    connect(aktion, &QAction::triggered, this, bewacht([this, werkzeug](bool) { modell_.werkzeugGewaehlt(werkzeug); }));
}

void ToolbarMidiFrm::baueExtras(QAction& knopf)
{
    auto* menue = new QMenu(this);
    weiterleitenInExtras_ = menue->addAction(symbol("forward"), QStringLiteral("Weiterleiten"));
    connect(weiterleitenInExtras_, &QAction::triggered, this,
            bewacht([this] { modell_.werkzeugGewaehlt(Werkzeug::Weiterleiten); }));
    knopf.setMenu(menue);
    if (auto* taste = qobject_cast<QToolButton*>(widgetForAction(&knopf))) {
        taste->setPopupMode(QToolButton::InstantPopup);
        taste->setLayoutDirection(Qt::RightToLeft); // The arrow stands behind the caption.
    }
}

void ToolbarMidiFrm::zeigen()
{
    for (int i = 0; i < ANZAHL_WERKZEUGE; ++i) {
        const auto werkzeug = static_cast<Werkzeug>(i);
        const Werkzeugknopf& soll = modell_.knopf(werkzeug);
        QAction& aktion = *knoepfe_[stelle(werkzeug)];
        aktion.setToolTip(zuQt(soll.tooltip));
        aktion.setVisible(soll.sichtbar);
        aktion.setEnabled(werkzeug == Werkzeug::Extras || modell_.hatAktion(werkzeug));
    }
    weiterleitenInExtras_->setEnabled(modell_.hatAktion(Werkzeug::Weiterleiten));
    trenner_[0]->setVisible(modell_.knopf(Werkzeug::Extras).sichtbar);
    passeAn();
}

QSize ToolbarMidiFrm::minimumSizeHint() const
{
    return {0, QToolBar::minimumSizeHint().height()};
}

void ToolbarMidiFrm::resizeEvent(QResizeEvent* ereignis)
{
    QToolBar::resizeEvent(ereignis);
    passeAn();
}

void ToolbarMidiFrm::passeAn()
{
    int breite = 2 * RAND;
    for (const QAction* trenner : trenner_)
        breite += trenner->isVisible() ? widgetForAction(const_cast<QAction*>(trenner))->sizeHint().width() : 0;
    for (const Werkzeug werkzeug : ENTBEHRLICH)
        taste(werkzeug).setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const QAction* knopf : knoepfe_)
        if (knopf->isVisible())
            breite += widgetForAction(const_cast<QAction*>(knopf))->sizeHint().width() + ABSTAND;
    for (const Werkzeug werkzeug : ENTBEHRLICH) {
        if (breite <= width())
            return;
        QToolButton& knopf = taste(werkzeug);
        if (!knoepfe_[stelle(werkzeug)]->isVisible())
            continue;
        breite -= knopf.sizeHint().width();
        knopf.setToolButtonStyle(Qt::ToolButtonIconOnly);
        breite += knopf.sizeHint().width();
    }
}

QToolButton& ToolbarMidiFrm::taste(Werkzeug werkzeug)
{
    return *qobject_cast<QToolButton*>(widgetForAction(knoepfe_[stelle(werkzeug)]));
}

} // namespace quelvarn
