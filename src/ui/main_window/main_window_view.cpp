#include "ui/main_window/main_window_view.h"

#include "frame/main_window.h"
#include "ui/controls/page_button.h"
#include "ui/guard.h"
#include "ui/main_window/main_tool_bar.h"
#include "ui/main_window/status_bar_update.h"
#include "ui/measures.h"
#include "ui/text.h"
#include "ui/theme/appearance.h"
#include "ui/theme/icons.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>

#include <utility>

namespace quelvarn {

namespace {

constexpr int FENSTERBREITE = 14085; // twips

struct Seitenweg
{
    Seite ziel;
    const char* name;
    const char* text;
    const char* bild;
};

constexpr std::array<Seitenweg, 3> SEITENWEGE{{
    {Seite::Start, "Start", "Startseite", "start"},
    {Seite::Filter, "SEFilter", "SE-Filter", "filter"},
    {Seite::Dokumente, "SEDoku", "SE-Doku", "document"},
}};

} // namespace

MDIForm1::MDIForm1(MainWindow& modell, const SessionState& session, const Darstellung& darstellung)
    : modell_(modell), session_(session), darstellung_(darstellung), werkzeuge_(new ToolbarMidiFrm(modell)),
      seiten_(new QStackedWidget), status_(new StatusBarUpdate),
      timerDBUpdate_(neuerZeitgeber("TimerDBUpdate", [this] { modell_.tickDBUpdate(); })),
      timerCheckInOut_(neuerZeitgeber("TimerCheckInOut", {}))
{
    setObjectName(QStringLiteral("MDIForm1"));
    setWindowIcon(programmsymbol());
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(0);
    aufbau->addWidget(neuerKopf());
    aufbau->addWidget(seiten_, 1);
    aufbau->addWidget(status_);
    stelleGroesseEin();
}

QWidget* MDIForm1::neuerKopf()
{
    auto* kopf = new QFrame;
    kopf->setObjectName(QStringLiteral("Kopf"));
    auto* reihe = new QHBoxLayout(kopf);
    reihe->setContentsMargins(8, 6, 4, 6);
    reihe->setSpacing(4);
    for (std::size_t i = 0; i < SEITENWEGE.size(); ++i) {
        const Seitenweg& weg = SEITENWEGE[i];
        auto* knopf = new Seitenknopf(weg.name, QLatin1String(weg.text), weg.bild);
        knopf->gewaehlt = [this, ziel = weg.ziel] { modell_.zuSeite(ziel); };
        auto* taste = new QShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + i)), this);
        connect(taste, &QShortcut::activated, this, bewacht([this, ziel = weg.ziel] { modell_.zuSeite(ziel); }));
        seitenknoepfe_[i] = knopf;
        reihe->addWidget(knopf);
    }
    reihe->addSpacing(8);
    reihe->addWidget(werkzeuge_, 1);
    return kopf;
}

QTimer* MDIForm1::neuerZeitgeber(const char* name, std::function<void()> tick)
{
    auto* zeitgeber = new QTimer(this);
    zeitgeber->setObjectName(QLatin1String(name));
    // One-shot: a tick that takes long, or shows a box, cannot be overtaken by the next one.
    zeitgeber->setSingleShot(true);
    connect(zeitgeber, &QTimer::timeout, this, bewacht([this, tick = std::move(tick)] {
                if (tick)
                    Waechter::aktuell().fuehreAus(tick);
                zeigeZeitgeber();
            }));
    return zeitgeber;
}

void MDIForm1::setzeSeiten(QWidget& start, QWidget& filter, QWidget& dokumente)
{
    seiten_->addWidget(new QWidget); // Until the first page is there.
    for (QWidget* seite : {&start, &filter, &dokumente})
        seiten_->addWidget(seite);
}

void MDIForm1::stelleGroesseEin()
{
    const QSize groesse = ausTwips(FENSTERBREITE, session_.user.FensterHoehe, *screen());
    const bool frei = darstellung_.fensterFrei();
    setWindowFlag(Qt::WindowMaximizeButtonHint, frei);
    setMinimumSize(frei ? groesse * 0.8 : groesse);
    setMaximumSize(frei ? QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) : groesse);
    if (!frei || !isVisible())
        resize(groesse);
}

void MDIForm1::zeigen()
{
    setWindowTitle(zuQt(modell_.titel()));
    for (std::size_t i = 0; i < SEITENWEGE.size(); ++i) {
        const bool vorn = modell_.seite() == SEITENWEGE[i].ziel;
        seitenknoepfe_[i]->zeigeAktiv(vorn);
        const int stelle = static_cast<int>(i) + 1;
        if (vorn && seiten_->currentIndex() != stelle) {
            seiten_->setCurrentIndex(stelle);
            seiten_->currentWidget()->setFocus();
        }
    }
    werkzeuge_->zeigen();
    status_->zeigen(modell_);
    zeigeZeitgeber();
}

void MDIForm1::zeigeAenderungen(const std::array<std::string, 5>& texte)
{
    status_->zeigeAenderungen(texte);
}

void MDIForm1::zeigeZeitgeber()
{
    const auto stelle = [](QTimer& zeitgeber, const Zeitgeber& soll) {
        if (!soll.an)
            zeitgeber.stop();
        else if (!zeitgeber.isActive() || zeitgeber.interval() != soll.intervall)
            zeitgeber.start(soll.intervall);
    };
    stelle(*timerDBUpdate_, modell_.TimerDBUpdate());
    stelle(*timerCheckInOut_, modell_.TimerCheckInOut());
}

void MDIForm1::changeEvent(QEvent* ereignis)
{
    QWidget::changeEvent(ereignis);
    // Some window managers maximise a window of fixed size all the same.
    const bool gross = windowState().testFlag(Qt::WindowMaximized) || windowState().testFlag(Qt::WindowFullScreen);
    if (ereignis->type() == QEvent::WindowStateChange && gross && !darstellung_.fensterFrei())
        showNormal();
}

void MDIForm1::closeEvent(QCloseEvent* ereignis)
{
    ereignis->ignore();
    Waechter::aktuell().fuehreAus([this] { modell_.entladen(); });
}

} // namespace quelvarn
