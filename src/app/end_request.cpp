#include "app/end_request.h"

#include "ui/guard.h"

#include <QGuiApplication>
#include <QSessionManager>

#include <utility>

namespace quelvarn {

EndRequest::EndRequest(std::function<bool()> end)
    : end_(std::move(end)), signals_(watchEndSignals([this] { request(); }))
{
    // Answered at once: the system waits for it, and ends the program afterwards.
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager&) { request(); },
        Qt::DirectConnection);
}

EndRequest::~EndRequest() = default;

void EndRequest::request()
{
    bool over = false;
    Waechter::aktuell().fuehreAus([&] { over = end_(); });
    if (over)
        again_.stop();
    else if (!again_.isActive())
        again_.start(50, this); // milliseconds
}

void EndRequest::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == again_.timerId())
        request();
}

} // namespace quelvarn
