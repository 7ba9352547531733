#include "ui/measures.h"

#include <QScreen>

namespace quelvarn {

QSize ausTwips(int breite, int hoehe, const QScreen& bildschirm)
{
    return {qRound(breite * bildschirm.logicalDotsPerInchX() / TWIPS_JE_ZOLL),
            qRound(hoehe * bildschirm.logicalDotsPerInchY() / TWIPS_JE_ZOLL)};
}

} // namespace quelvarn
