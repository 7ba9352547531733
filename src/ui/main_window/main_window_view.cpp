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

constexpr int WINDOW_WIDTH = 14085; // twips

struct PageRoute
{
    Page target;
    const char* name;
    const char* text;
    const char* picture;
};

constexpr std::array<PageRoute, 3> PAGE_ROUTES{{
    {Page::Start, "Start", "Startseite", "start"},
    {Page::Filter, "SEFilter", "SE-Filter", "filter"},
    {Page::Documents, "SEDoku", "SE-Doku", "document"},
}};

} // namespace

MDIForm1::MDIForm1(MainWindow& model, const SessionUser& user, const Appearance& appearance)
    : model_(model), user_(user), appearance_(appearance), tools_(new ToolbarMidiFrm(model)),
      pages_(new QStackedWidget), status_(new StatusBarUpdate),
      timerDBUpdate_(newTimerSetting("TimerDBUpdate", [this] { model_.tickDBUpdate(); })),
      timerCheckInOut_(newTimerSetting("TimerCheckInOut", {}))
{
    setObjectName(QStringLiteral("MDIForm1"));
    setWindowIcon(programIcon());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(newHeading());
    layout->addWidget(pages_, 1);
    layout->addWidget(status_);
    configureSize();
}

QWidget* MDIForm1::newHeading()
{
    auto* heading = new QFrame;
    heading->setObjectName(QStringLiteral("FrameHead"));
    auto* layoutRow = new QHBoxLayout(heading);
    layoutRow->setContentsMargins(8, 6, 4, 6);
    layoutRow->setSpacing(4);
    for (std::size_t i = 0; i < PAGE_ROUTES.size(); ++i) {
        const PageRoute& route = PAGE_ROUTES[i];
        auto* button = new PageButton(route.name, QLatin1String(route.text), route.picture);
        button->chosen = [this, target = route.target] { model_.toPage(target); };
        auto* key = new QShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + i)), this);
        connect(key, &QShortcut::activated, this,
                guardedSlot([this, target = route.target] { model_.toPage(target); }));
        pageButtons_[i] = button;
        layoutRow->addWidget(button);
    }
    layoutRow->addSpacing(8);
    layoutRow->addWidget(tools_, 1);
    return heading;
}

QTimer* MDIForm1::newTimerSetting(const char* name, std::function<void()> tick)
{
    auto* timerSetting = new QTimer(this);
    timerSetting->setObjectName(QLatin1String(name));
    // One-shot: a tick that takes long, or shows a box, cannot be overtaken by the next one.
    timerSetting->setSingleShot(true);
    connect(timerSetting, &QTimer::timeout, this, guardedSlot([this, tick = std::move(tick)] {
                if (tick)
                    SlotGuard::current().execute(tick);
                showTimers();
            }));
    return timerSetting;
}

void MDIForm1::setPages(QWidget& start, QWidget& filter, QWidget& documents)
{
    pages_->addWidget(new QWidget); // Until the first page is there.
    for (QWidget* page : {&start, &filter, &documents})
        pages_->addWidget(page);
}

void MDIForm1::configureSize()
{
    const QSize size = fromTwips(WINDOW_WIDTH, user_.FensterHoehe, *screen());
    const bool free = appearance_.windowFree();
    setWindowFlag(Qt::WindowMaximizeButtonHint, free);
    setMinimumSize(free ? size * 0.8 : size);
    setMaximumSize(free ? QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) : size);
    if (!free || !isVisible())
        resize(size);
}

void MDIForm1::refresh()
{
    setWindowTitle(toQt(model_.title()));
    for (std::size_t i = 0; i < PAGE_ROUTES.size(); ++i) {
        const bool front = model_.page() == PAGE_ROUTES[i].target;
        pageButtons_[i]->showActive(front);
        const int position = static_cast<int>(i) + 1;
        if (front && pages_->currentIndex() != position) {
            pages_->setCurrentIndex(position);
            pages_->currentWidget()->setFocus();
        }
    }
    tools_->refresh();
    status_->refresh(model_);
    showTimers();
}

void MDIForm1::showChanges(const std::array<std::string, 5>& texts)
{
    status_->showChanges(texts);
}

void MDIForm1::showTimers()
{
    const auto position = [](QTimer& timerSetting, const TimerSetting& should) {
        if (!should.on)
            timerSetting.stop();
        else if (!timerSetting.isActive() || timerSetting.interval() != should.interval)
            timerSetting.start(should.interval);
    };
    position(*timerDBUpdate_, model_.TimerDBUpdate());
    position(*timerCheckInOut_, model_.TimerCheckInOut());
}

void MDIForm1::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    // Some window managers maximise a window of fixed size all the same.
    const bool large = windowState().testFlag(Qt::WindowMaximized) || windowState().testFlag(Qt::WindowFullScreen);
    if (event->type() == QEvent::WindowStateChange && large && !appearance_.windowFree())
        showNormal();
}

void MDIForm1::closeEvent(QCloseEvent* event)
{
    event->ignore();
    SlotGuard::current().execute([this] { model_.unload(); });
}

} // namespace quelvarn
