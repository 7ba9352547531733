#include "ui/measures.h"

#include <QScreen>

namespace quelvarn {

QSize fromTwips(int width, int height, const QScreen& screen)
{
    return {qRound(width * screen.logicalDotsPerInchX() / TWIPS_PER_INCH),
            qRound(height * screen.logicalDotsPerInchY() / TWIPS_PER_INCH)};
}

} // namespace quelvarn
