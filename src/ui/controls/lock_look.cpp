#include "ui/controls/lock_look.h"

#include <QGroupBox>
#include <QStyle>

namespace quelvarn {

void showLocked(QWidget& field, bool locked)
{
    if (field.property("locked").toBool() == locked)
        return;
    field.setProperty("locked", locked);
    field.setAccessibleDescription(locked ? QStringLiteral("gesperrt") : QString());
    field.style()->unpolish(&field);
    field.style()->polish(&field);
    field.update();
}

void showLocked(QGroupBox& frame, const QString& title, bool locked)
{
    frame.setTitle(locked ? title + QStringLiteral(" (gesperrt)") : title);
}

} // namespace quelvarn
