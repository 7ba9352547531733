#include "ui/adapters/clipboard_qt.h"

#include "ui/text.h"

#include <QClipboard>
#include <QGuiApplication>

namespace quelvarn {

std::string QtClipboard::text() const
{
    return fromQt(QGuiApplication::clipboard()->text());
}

void QtClipboard::setText(std::string_view text)
{
    QGuiApplication::clipboard()->setText(toQt(text));
}

} // namespace quelvarn
