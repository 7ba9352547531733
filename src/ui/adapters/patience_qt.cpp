#include "ui/adapters/patience_qt.h"

#include "ui/adapters/held_back.h"
#include "ui/text.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <utility>

namespace quelvarn {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds UNSHOWN{500};
constexpr milliseconds LONGEST_ALONE{2000};
constexpr int MARGIN = 16;

bool asking = false;

struct Asking
{
    Asking() { asking = true; }
    ~Asking() { asking = false; }
    Asking(const Asking&) = delete;
    Asking& operator=(const Asking&) = delete;
};

QDialog* newPanel(QWidget* owner, QLabel& text, QPushButton& giveUp)
{
    // Over a window it looks like a part of it; alone it needs a title to be found.
    auto* panel = new QDialog(owner, owner ? Qt::Dialog | Qt::FramelessWindowHint : Qt::Dialog);
    panel->setObjectName(QStringLiteral("WaitPanel"));
    panel->setWindowTitle(QApplication::applicationName());
    panel->setWindowModality(Qt::ApplicationModal);
    panel->setAttribute(Qt::WA_QuitOnClose, false); // It may be the only window.
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    row->setSpacing(MARGIN);
    row->addWidget(&text, 1);
    row->addWidget(&giveUp, 0, Qt::AlignVCenter);
    return panel;
}

} // namespace

QtPatience::~QtPatience()
{
    hide();
}

bool QtPatience::isAsking()
{
    return asking;
}

bool QtPatience::keepWaiting(WaitReason reason, milliseconds waited)
{
    if (asking) // Another connection, from within an event of the wait.
        return false;
    if (waited < UNSHOWN || alone_)
        return waited < LONGEST_ALONE;
    const Asking now;
    if (panel_ == nullptr)
        show(reason);
    text_->setText(toQt(waitingText(reason, waited)));
    QApplication::processEvents();
    return !givenUp_;
}

void QtPatience::waitEnded()
{
    hide();
}

void QtPatience::show(WaitReason reason)
{
    givenUp_ = false;
    owner_ = frontWindow();
    freeze();
    text_ = new QLabel(toQt(waitingText(reason, milliseconds(59'000))));
    text_->setObjectName(QStringLiteral("LblWarten"));
    auto* giveUp = new QPushButton(QStringLiteral("Abbrechen"));
    giveUp->setObjectName(QStringLiteral("CmWartenAbbrechen"));
    panel_ = newPanel(owner_, *text_, *giveUp);
    connect(giveUp, &QPushButton::clicked, this, [this] { givenUp_ = true; });
    panel_->setFixedSize(panel_->sizeHint()); // With room for a number of seconds.
    if (owner_ != nullptr) {
        const QPoint free((owner_->width() - panel_->width()) / 2, (owner_->height() - panel_->height()) / 3);
        panel_->move(owner_->mapToGlobal(free));
    }
    QApplication::setOverrideCursor(Qt::BusyCursor);
    qApp->installEventFilter(this);
    panel_->show();
    panel_->activateWindow();
}

// What a window shows stays on the screen; a grid that would draw itself would read cells.
void QtPatience::freeze()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || !window->updatesEnabled())
            continue;
        window->setUpdatesEnabled(false);
        frozen_.emplace_back(window);
    }
}

void QtPatience::hide()
{
    if (panel_ == nullptr)
        return;
    qApp->removeEventFilter(this);
    QApplication::restoreOverrideCursor();
    delete panel_;
    for (const auto& window : std::exchange(frozen_, {}))
        if (window != nullptr)
            window->setUpdatesEnabled(true);
    if (owner_ != nullptr)
        owner_->activateWindow();
}

bool QtPatience::isOurs(const QObject* receiver) const
{
    for (; receiver != nullptr; receiver = receiver->parent())
        if (receiver == panel_)
            return true;
    return false;
}

bool QtPatience::eventFilter(QObject* receiver, QEvent* event)
{
    const bool ours = isOurs(receiver);
    switch (event->type()) {
    case QEvent::Timer: // They start operations, tool tips and layouts; they come again when the wait is over.
        return !ours && (receiver->isWidgetType() || receiver == qApp || qobject_cast<QTimer*>(receiver) != nullptr);
    case QEvent::Paint:
        return !ours && receiver->isWidgetType();
    case QEvent::Close:
        if (!receiver->isWidgetType())
            return false; // A window passes it on.
        givenUp_ = true;
        event->ignore();
        return true;
    default:
        break;
    }
    if (isEscape(event)) {
        givenUp_ = true;
        event->accept();
        return true;
    }
    if (event->type() == QEvent::Shortcut)
        return !ours;
    return !ours && receiver->isWidgetType() && isInput(event->type());
}

} // namespace quelvarn
