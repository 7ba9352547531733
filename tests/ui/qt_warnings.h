#pragma once

#include <QString>

namespace quelvarn::test {

// A warning of the toolkit is a fault of ours, but for what the platform without a screen cannot do.
inline bool isFault(QtMsgType type, const QString& text)
{
    return type != QtDebugMsg && type != QtInfoMsg && !text.contains(QLatin1String("propagateSizeHints")) &&
           !text.startsWith(QLatin1String("This plugin does not support")) &&
           !text.contains(QLatin1String("XDG_RUNTIME_DIR"));
}

} // namespace quelvarn::test
