#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace quelvarn {

// The core speaks UTF-8; QString begins here.
inline QString toQt(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string fromQt(const QString& text)
{
    return text.toStdString();
}

} // namespace quelvarn
