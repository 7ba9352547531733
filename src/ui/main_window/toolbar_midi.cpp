#include "ui/main_window/toolbar_midi.h"

#include "ui/controls/tool_bar.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "ui/theme/icons.h"

#include <QMenu>
#include <QResizeEvent>
#include <QToolButton>

namespace quelvarn {

namespace {

constexpr std::array<std::string_view, ANZAHL_WERKZEUGE> SYMBOLE{"bearbeiten", "einfuegen",    "plazieren", "auge",
                                                                 "extras",     "weiterleiten", "nachricht", "beenden"};

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
    weiterleitenInExtras_ = menue->addAction(symbol("weiterleiten"), QStringLiteral("Weiterleiten"));
    connect(weiterleitenInExtras_, &QAction::triggered, this,
            bewacht([this] { modell_.werkzeugGewaehlt(Werkzeug::Weiterleiten); }));
    knopf.setMenu(menue);
    if (auto* taste = qobject_cast<QToolButton*>(widgetForAction(&knopf)))
        taste->setPopupMode(QToolButton::InstantPopup);
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
    int breite = 0;
    for (const QAction* aktion : knoepfe_)
        if (aktion->isVisible()) {
            const int text = fontMetrics().horizontalAdvance(aktion->text());
            breite += text + iconSize().width() + 24;
        }
    const auto stil = breite + 24 > width() ? Qt::ToolButtonTextOnly : Qt::ToolButtonTextBesideIcon;
    if (toolButtonStyle() != stil)
        setToolButtonStyle(stil);
}

} // namespace quelvarn
