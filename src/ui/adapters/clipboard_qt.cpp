#include "ui/adapters/clipboard_qt.h"

#include "ui/text.h"

#include <QClipboard>
#include <QGuiApplication>

namespace quelvarn {

std::string QtZwischenablage::text() const
{
    return ausQt(QGuiApplication::clipboard()->text());
}

void QtZwischenablage::setzeText(std::string_view text)
{
    QGuiApplication::clipboard()->setText(zuQt(text));
}

} // namespace quelvarn
