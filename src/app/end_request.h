#pragma once

#include <QBasicTimer>
#include <QObject>

#include <functional>
#include <memory>

namespace quelvarn {

// Ends the program in its own way when the system asks for it: at a logout, or by a signal. What a person would have
// been asked is then answered without him.
class EndRequest final : public QObject
{
public:
    // `end` ends the program; false when it is at work that must come to its end first, and it is asked again.
    explicit EndRequest(std::function<bool()> end);
    ~EndRequest() override;

    void request();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    std::function<bool()> end_;
    QBasicTimer again_; // No QTimer: those are held back while the program is at work.
    std::unique_ptr<QObject> signals_;
};

// Calls `wanted` from the event loop when a signal asks the program to end. Lives as long as what it returns.
std::unique_ptr<QObject> watchEndSignals(std::function<void()> wanted);

} // namespace quelvarn
