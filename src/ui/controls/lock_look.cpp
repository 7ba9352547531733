#include "ui/controls/lock_look.h"

#include <QGroupBox>
#include <QStyle>

namespace quelvarn {

void zeigeGesperrt(QWidget& feld, bool gesperrt)
{
    if (feld.property("gesperrt").toBool() == gesperrt)
        return;
    feld.setProperty("gesperrt", gesperrt);
    feld.setAccessibleDescription(gesperrt ? QStringLiteral("gesperrt") : QString());
    feld.style()->unpolish(&feld);
    feld.style()->polish(&feld);
    feld.update();
}

void zeigeGesperrt(QGroupBox& rahmen, const QString& titel, bool gesperrt)
{
    rahmen.setTitle(gesperrt ? titel + QStringLiteral(" (gesperrt)") : titel);
}

} // namespace quelvarn
