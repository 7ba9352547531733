#include "ui/controls/tiff_view.h"

#include "ui/controls/picture_area.h"
#include "ui/controls/strip.h"
#include "ui/controls/tool_bar.h"
#include "ui/guard.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QPromise>
#include <QThreadPool>
#include <QToolBar>
#include <QVBoxLayout>

#include <utility>

namespace quelvarn {

namespace {

constexpr double SCHRITT = 1.25; // Of the zoom

QFuture<Bildseite> ladeImHintergrund(const QString& datei, int nummer, std::function<bool()> nochGewuenscht)
{
    auto zusage = std::make_shared<QPromise<Bildseite>>();
    QFuture<Bildseite> ergebnis = zusage->future();
    zusage->start();
    QThreadPool::globalInstance()->start([zusage, datei, nummer, nochGewuenscht = std::move(nochGewuenscht)] {
        zusage->addResult(nochGewuenscht() ? ladeBildseite(datei, nummer) : Bildseite());
        zusage->finish();
    });
    return ergebnis;
}

} // namespace

TiffAnsicht::TiffAnsicht(const char* name) : flaeche_(new Bildflaeche), LblSeite_(new QLabel)
{
    setObjectName(QLatin1String(name));
    flaeche_->setObjectName(QLatin1String(name) + QStringLiteral("Flaeche"));
    leiste_ = neueKnoepfe(name);
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(0);
    aufbau->addWidget(leiste_);
    aufbau->addWidget(flaeche_, 1);
    setFocusProxy(flaeche_);
    connect(&lader_, &QFutureWatcherBase::finished, this, bewacht([this] { geladen(); }));
    zeige({});
}

TiffAnsicht::~TiffAnsicht()
{
    ++*gewuenscht_;
}

QToolBar* TiffAnsicht::neueKnoepfe(const char* name)
{
    auto* leiste = neueLeiste(std::string("Tlb") + name, Knopfart::NurSymbol);
    const auto knopf = [&](const Leistenknopf& beschreibung, std::function<void()> tun) {
        QAction* aktion = fuegeKnopfHinzu(*leiste, beschreibung);
        connect(aktion, &QAction::triggered, this, bewacht([tun = std::move(tun)] { tun(); }));
        return aktion;
    };
    knopf({"Vergrößern", "Vergrößern", "Vergrößern (+)", "plus"}, [this] { flaeche_->zoome(SCHRITT); });
    knopf({"Verkleinern", "Verkleinern", "Verkleinern (-)", "minus"}, [this] { flaeche_->zoome(1 / SCHRITT); });
    knopf({"Einpassen", "Einpassen", "Ganze Seite (0)", "fit"}, [this] { flaeche_->passeEin(); });
    fuegeDehnerHinzu(*leiste);
    zurueck_ = knopf({"Seite zurück", "Seite zurück", "Vorige Seite (Bild auf)", "left"}, [this] { blaettere(-1); });
    LblSeite_->setObjectName(QStringLiteral("LblSeite") + QLatin1String(name));
    setzeRolle(*LblSeite_, Rolle::Klein);
    seitenfeld_ = leiste->addWidget(LblSeite_);
    vor_ = knopf({"Seite vor", "Seite vor", "Nächste Seite (Bild ab)", "right"}, [this] { blaettere(1); });
    return leiste;
}

void TiffAnsicht::zeige(const QString& datei)
{
    if (datei == datei_ && !datei.isEmpty())
        return;
    datei_ = datei;
    for (QAction* aktion : {zurueck_, seitenfeld_, vor_})
        aktion->setVisible(false);
    leiste_->setEnabled(false);
    if (!datei.isEmpty())
        return ladeSeite(0);
    ++*gewuenscht_;
    lader_.setFuture({});
    flaeche_->zeigeText({});
}

void TiffAnsicht::ladeSeite(int nummer)
{
    flaeche_->zeigeText(QStringLiteral("Die Datei wird geladen ..."));
    const int auftrag = ++*gewuenscht_;
    lader_.setFuture(
        ladeImHintergrund(datei_, nummer, [auftrag, stand = gewuenscht_] { return stand->load() == auftrag; }));
}

void TiffAnsicht::geladen()
{
    if (datei_.isEmpty() || lader_.future().resultCount() == 0)
        return;
    Bildseite seite = lader_.result();
    lader_.setFuture({}); // It would keep the picture as well.
    if (seite.stufen.empty()) {
        zeige({});
        if (nichtGeladen)
            nichtGeladen();
        return;
    }
    leiste_->setEnabled(true);
    for (QAction* aktion : {zurueck_, seitenfeld_, vor_})
        aktion->setVisible(seite.anzahl > 1);
    zurueck_->setEnabled(seite.nummer > 0);
    vor_->setEnabled(seite.nummer + 1 < seite.anzahl);
    LblSeite_->setText(QStringLiteral("Seite %1 von %2").arg(seite.nummer + 1).arg(seite.anzahl));
    flaeche_->zeige(std::move(seite));
}

void TiffAnsicht::blaettere(int um)
{
    const Bildseite& seite = flaeche_->seite();
    const int nummer = seite.nummer + um;
    if (!seite.stufen.empty() && nummer >= 0 && nummer < seite.anzahl)
        ladeSeite(nummer);
}

void TiffAnsicht::keyPressEvent(QKeyEvent* ereignis)
{
    if (ereignis->key() == Qt::Key_PageUp || ereignis->key() == Qt::Key_PageDown)
        return blaettere(ereignis->key() == Qt::Key_PageUp ? -1 : 1);
    QWidget::keyPressEvent(ereignis);
}

} // namespace quelvarn
