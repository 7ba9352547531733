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

constexpr int UNSHOWN = 100;         // milliseconds; shorter work is never shown
constexpr int PICTURE_DISTANCE = 40; // milliseconds between two looks at the event queue
constexpr int PANEL_WIDTH = 420;

QFrame* newPanel(QWidget& window, ProgressField& field)
{
    auto* panel = new QFrame(&window);
    panel->setObjectName(QStringLiteral("ProgressPanel"));
    auto* layout = new QHBoxLayout(panel);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->addWidget(&field);
    field.show();
    const int width = std::min(std::max(PANEL_WIDTH, panel->sizeHint().width()), window.width());
    panel->resize(width, panel->sizeHint().height());
    panel->move((window.width() - panel->width()) / 2, (window.height() - panel->height()) / 3);
    panel->show();
    return panel;
}

} // namespace

QtProgress::~QtProgress()
{
    hide();
}

void QtProgress::begin(std::string_view text)
{
    if (depth_++ > 0)
        return;
    abandoned_ = false;
    text_ = toQt(text);
    sinceStart_.start();
}

bool QtProgress::step(std::size_t done, std::size_t total)
{
    if (abandoned_ || sinceStart_.elapsed() < UNSHOWN)
        return !abandoned_;
    if (field_ != nullptr && sincePicture_.elapsed() < PICTURE_DISTANCE)
        return true;
    if (field_ == nullptr)
        show();
    if (field_ != nullptr && depth_ == 1)
        field_->showStand(done, total);
    QApplication::processEvents();
    sincePicture_.start();
    return !abandoned_;
}

void QtProgress::end()
{
    if (--depth_ == 0)
        hide();
}

void QtProgress::show()
{
    field_ = ProgressField::borrowed();
    if (field_ == nullptr) {
        QWidget* window = frontWindow();
        if (window == nullptr)
            return;
        field_ = new ProgressField("PrgBarFortschritt", "LblFortschritt", "CmAbbrechen");
        field_->setText(text_);
        panel_ = newPanel(*window, *field_);
    }
    field_->setText(text_);
    field_->show();
    connect(&field_->cancel(), &QAbstractButton::clicked, this, [this] { abandoned_ = true; });
    QApplication::setOverrideCursor(Qt::BusyCursor);
    qApp->installEventFilter(this);
}

void QtProgress::hide()
{
    if (field_ == nullptr)
        return;
    qApp->removeEventFilter(this);
    QApplication::restoreOverrideCursor();
    disconnect(&field_->cancel(), nullptr, this, nullptr);
    field_->hide();
    field_.clear();
    delete panel_;
}

bool QtProgress::isCancel(const QObject* receiver) const
{
    return field_ != nullptr && receiver == &field_->cancel();
}

bool QtProgress::eventFilter(QObject* receiver, QEvent* event)
{
    // A box within the work holds back everything else by itself.
    if (QApplication::activeModalWidget() != nullptr)
        return false;
    // Timers start operations too; they come again when the work is done.
    if (event->type() == QEvent::Timer)
        return qobject_cast<QTimer*>(receiver) != nullptr;
    if (isEscape(event)) {
        abandoned_ = true;
        event->accept();
        return true;
    }
    if (event->type() == QEvent::Shortcut)
        return true;
    if (!receiver->isWidgetType() || isCancel(receiver)) // A window passes on what its widgets are asked for.
        return false;
    if (event->type() == QEvent::Close) {
        abandoned_ = true;
        event->ignore();
        return true;
    }
    return isInput(event->type());
}

} // namespace quelvarn
