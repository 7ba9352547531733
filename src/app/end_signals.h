#pragma once

#include <QObject>

#include <functional>

namespace quelvarn {

// Tells when the system or its administrator asks the process to end. On Linux by SIGTERM, SIGINT or SIGHUP; the same
// signal a second time ends it at once. Windows has no such signals: a logout comes by the desktop's session.
class EndSignals final : public QObject
{
    Q_OBJECT

public:
    // `asked` is called from the event loop. There is one object of this kind in a process.
    explicit EndSignals(std::function<void()> asked);
    ~EndSignals() override;

private:
    std::function<void()> asked_;
};

} // namespace quelvarn
