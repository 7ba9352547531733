#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace quelvarn {

// The hourglass, as long as it lives.
class Sanduhr
{
public:
    Sanduhr() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Sanduhr() { QGuiApplication::restoreOverrideCursor(); }
    Sanduhr(const Sanduhr&) = delete;
    Sanduhr& operator=(const Sanduhr&) = delete;
};

} // namespace quelvarn
