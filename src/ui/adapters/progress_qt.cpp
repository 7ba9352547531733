#include "ui/adapters/progress_qt.h"

#include "ui/adapters/held_back.h"
#include "ui/controls/progress_field.h"
#include "ui/text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QTimer>

#include <algorithm>

namespace quelvarn {

namespace {

constexpr int UNGEZEIGT = 100;  // milliseconds; shorter work is never shown
constexpr int BILDABSTAND = 40; // milliseconds between two looks at the event queue
constexpr int TAFELBREITE = 420;

QFrame* neueTafel(QWidget& fenster, Fortschrittsfeld& feld)
{
    auto* tafel = new QFrame(&fenster);
    tafel->setObjectName(QStringLiteral("Fortschrittstafel"));
    auto* aufbau = new QHBoxLayout(tafel);
    aufbau->setContentsMargins(16, 12, 16, 12);
    aufbau->addWidget(&feld);
    feld.show();
    const int breite = std::min(std::max(TAFELBREITE, tafel->sizeHint().width()), fenster.width());
    tafel->resize(breite, tafel->sizeHint().height());
    tafel->move((fenster.width() - tafel->width()) / 2, (fenster.height() - tafel->height()) / 3);
    tafel->show();
    return tafel;
}

} // namespace

QtFortschritt::~QtFortschritt()
{
    verberge();
}

void QtFortschritt::beginne(std::string_view text)
{
    if (tiefe_++ > 0)
        return;
    aufgegeben_ = false;
    text_ = zuQt(text);
    seitBeginn_.start();
}

bool QtFortschritt::schritt(std::size_t getan, std::size_t gesamt)
{
    if (aufgegeben_ || seitBeginn_.elapsed() < UNGEZEIGT)
        return !aufgegeben_;
    if (feld_ != nullptr && seitBild_.elapsed() < BILDABSTAND)
        return true;
    if (feld_ == nullptr)
        zeige();
    if (feld_ != nullptr && tiefe_ == 1)
        feld_->zeigeStand(getan, gesamt);
    QApplication::processEvents();
    seitBild_.start();
    return !aufgegeben_;
}

void QtFortschritt::beende()
{
    if (--tiefe_ == 0)
        verberge();
}

void QtFortschritt::zeige()
{
    feld_ = Fortschrittsfeld::geliehenes();
    if (feld_ == nullptr) {
        QWidget* fenster = frontWindow();
        if (fenster == nullptr)
            return;
        feld_ = new Fortschrittsfeld("PrgBarFortschritt", "LblFortschritt", "CmAbbrechen");
        feld_->setzeText(text_);
        tafel_ = neueTafel(*fenster, *feld_);
    }
    feld_->setzeText(text_);
    feld_->show();
    connect(&feld_->abbrechen(), &QAbstractButton::clicked, this, [this] { aufgegeben_ = true; });
    QApplication::setOverrideCursor(Qt::BusyCursor);
    qApp->installEventFilter(this);
}

void QtFortschritt::verberge()
{
    if (feld_ == nullptr)
        return;
    qApp->removeEventFilter(this);
    QApplication::restoreOverrideCursor();
    disconnect(&feld_->abbrechen(), nullptr, this, nullptr);
    feld_->hide();
    feld_.clear();
    delete tafel_;
}

bool QtFortschritt::istAbbrechen(const QObject* empfaenger) const
{
    return feld_ != nullptr && empfaenger == &feld_->abbrechen();
}

bool QtFortschritt::eventFilter(QObject* empfaenger, QEvent* ereignis)
{
    // A box within the work holds back everything else by itself.
    if (QApplication::activeModalWidget() != nullptr)
        return false;
    // Timers start operations too; they come again when the work is done.
    if (ereignis->type() == QEvent::Timer)
        return qobject_cast<QTimer*>(empfaenger) != nullptr;
    if (isEscape(ereignis)) {
        aufgegeben_ = true;
        ereignis->accept();
        return true;
    }
    if (ereignis->type() == QEvent::Shortcut)
        return true;
    if (!empfaenger->isWidgetType() || istAbbrechen(empfaenger)) // A window passes on what its widgets are asked for.
        return false;
    if (ereignis->type() == QEvent::Close) {
        aufgegeben_ = true;
        ereignis->ignore();
        return true;
    }
    return isInput(ereignis->type());
}

} // namespace quelvarn
