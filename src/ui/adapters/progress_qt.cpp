#include "ui/adapters/progress_qt.h"

#include "ui/controls/progress_field.h"
#include "ui/text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QTimer>

#include <algorithm>

namespace quelvarn {

namespace {

constexpr int UNGEZEIGT = 100;  // milliseconds; shorter work is never shown
constexpr int BILDABSTAND = 40; // milliseconds between two looks at the event queue
constexpr int TAFELBREITE = 420;

QWidget* fensterVorn()
{
    if (QWidget* aktiv = QApplication::activeWindow())
        return aktiv;
    const auto fenster = QApplication::topLevelWidgets();
    const auto sichtbar = std::find_if(fenster.begin(), fenster.end(), [](const QWidget* w) { return w->isVisible(); });
    return sichtbar != fenster.end() ? *sichtbar : nullptr;
}

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

bool istEingabe(QEvent::Type art)
{
    switch (art) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

bool istEsc(QEvent* ereignis)
{
    const bool taste = ereignis->type() == QEvent::KeyPress || ereignis->type() == QEvent::ShortcutOverride;
    return taste && static_cast<QKeyEvent*>(ereignis)->key() == Qt::Key_Escape;
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
        QWidget* fenster = fensterVorn();
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
    if (istEsc(ereignis)) {
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
    return istEingabe(ereignis->type());
}

} // namespace quelvarn
