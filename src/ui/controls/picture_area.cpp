#include "ui/controls/picture_area.h"

#include "ui/theme/colours.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quelvarn {

namespace {

constexpr double SCHRITT = 1.25;         // Of the zoom
constexpr double GROESSTER_MASSSTAB = 8; // Pixels of the screen for one of the picture
constexpr double RASTE = 120;            // Of the wheel
constexpr double PFEILSCHRITT = 0.1;     // Of the place
constexpr double RAND = 8;               // Around a picture that fits
constexpr double OHNE_GLAETTUNG_AB = 3;  // From here on the dots themselves are wanted.

} // namespace

Bildflaeche::Bildflaeche()
{
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(80, 80);
}

void Bildflaeche::zeige(Bildseite seite)
{
    seite_ = std::move(seite);
    text_.clear();
    passeEin();
    setCursor(Qt::OpenHandCursor);
}

void Bildflaeche::zeigeText(const QString& text)
{
    seite_ = {};
    text_ = text;
    unsetCursor();
    update();
}

double Bildflaeche::passenderMassstab() const
{
    const double breit = (width() - 2 * RAND) / std::max(1.0, seite_.masse.width());
    const double hoch = (height() - 2 * RAND) / std::max(1.0, seite_.masse.height());
    return std::clamp(std::min(breit, hoch), 1e-4, 1.0);
}

void Bildflaeche::passeEin()
{
    eingepasst_ = true;
    massstab_ = passenderMassstab();
    halteImRahmen();
}

void Bildflaeche::zoome(double faktor)
{
    zoomeUm(QPointF(width() / 2.0, height() / 2.0), faktor);
}

void Bildflaeche::zoomeUm(const QPointF& stelle, double faktor)
{
    if (seite_.stufen.empty())
        return;
    const double kleinster = passenderMassstab();
    const double neu = std::clamp(massstab_ * faktor, kleinster, std::max(kleinster, GROESSTER_MASSSTAB));
    ecke_ = stelle - (stelle - ecke_) * (neu / massstab_);
    massstab_ = neu;
    eingepasst_ = neu <= kleinster;
    halteImRahmen();
}

void Bildflaeche::verschiebe(const QPointF& um)
{
    ecke_ += um;
    halteImRahmen();
}

// A picture smaller than the place stands in its middle; a larger one always fills it.
void Bildflaeche::halteImRahmen()
{
    const auto halte = [](double lage, double bild, double platz) {
        return bild <= platz ? (platz - bild) / 2 : std::clamp(lage, platz - bild, 0.0);
    };
    ecke_ = {halte(ecke_.x(), seite_.masse.width() * massstab_, width()),
             halte(ecke_.y(), seite_.masse.height() * massstab_, height())};
    update();
}

// The smallest level that still has a dot for each pixel of the screen.
std::size_t Bildflaeche::stufe() const
{
    const double dichte = massstab_ * devicePixelRatioF() * seite_.masse.width() / seite_.stufen.front().width();
    const double wunsch = std::floor(std::log2(1 / dichte));
    return static_cast<std::size_t>(std::clamp(wunsch, 0.0, static_cast<double>(seite_.stufen.size() - 1)));
}

void Bildflaeche::paintEvent(QPaintEvent* /*ereignis*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), farbsatz().streifen);
    if (!seite_.stufen.empty())
        return zeichneBild(painter);
    painter.setPen(farbsatz().gedaempft);
    painter.drawText(rect().adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap, text_);
}

// Only the part that is seen is turned into something that can be drawn.
void Bildflaeche::zeichneBild(QPainter& painter) const
{
    const QImage& bild = seite_.stufen[stufe()];
    const double quer = seite_.masse.width() * massstab_ / bild.width(); // Pixels of the screen for one of the level
    const double hoch = seite_.masse.height() * massstab_ / bild.height();
    const QRectF sichtbar((0 - ecke_.x()) / quer, (0 - ecke_.y()) / hoch, width() / quer, height() / hoch);
    const QRect ausschnitt = sichtbar.toAlignedRect().adjusted(-1, -1, 1, 1).intersected(bild.rect());
    if (ausschnitt.isEmpty())
        return;
    QImage teil = bild.copy(ausschnitt);
    if (teil.depth() == 1)
        teil = std::move(teil).convertToFormat(QImage::Format_Grayscale8);
    const QRectF ziel(ecke_.x() + ausschnitt.x() * quer, ecke_.y() + ausschnitt.y() * hoch, ausschnitt.width() * quer,
                      ausschnitt.height() * hoch);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, quer * devicePixelRatioF() < OHNE_GLAETTUNG_AB);
    painter.drawImage(ziel, teil);
}

void Bildflaeche::resizeEvent(QResizeEvent* ereignis)
{
    QWidget::resizeEvent(ereignis);
    if (eingepasst_)
        passeEin();
    else
        halteImRahmen();
}

void Bildflaeche::wheelEvent(QWheelEvent* ereignis)
{
    zoomeUm(ereignis->position(), std::pow(SCHRITT, ereignis->angleDelta().y() / RASTE));
    ereignis->accept();
}

void Bildflaeche::mousePressEvent(QMouseEvent* ereignis)
{
    if (ereignis->button() != Qt::LeftButton || seite_.stufen.empty())
        return QWidget::mousePressEvent(ereignis);
    gezogenAb_ = ereignis->position();
    setCursor(Qt::ClosedHandCursor);
}

void Bildflaeche::mouseMoveEvent(QMouseEvent* ereignis)
{
    if (!ereignis->buttons().testFlag(Qt::LeftButton))
        return QWidget::mouseMoveEvent(ereignis);
    verschiebe(ereignis->position() - gezogenAb_);
    gezogenAb_ = ereignis->position();
}

void Bildflaeche::mouseReleaseEvent(QMouseEvent* ereignis)
{
    if (ereignis->button() == Qt::LeftButton && !seite_.stufen.empty())
        setCursor(Qt::OpenHandCursor);
}

void Bildflaeche::keyPressEvent(QKeyEvent* ereignis)
{
    switch (ereignis->key()) {
    case Qt::Key_Plus:
        return zoome(SCHRITT);
    case Qt::Key_Minus:
        return zoome(1 / SCHRITT);
    case Qt::Key_0:
        return passeEin();
    case Qt::Key_Left:
        return verschiebe({width() * PFEILSCHRITT, 0});
    case Qt::Key_Right:
        return verschiebe({-width() * PFEILSCHRITT, 0});
    case Qt::Key_Up:
        return verschiebe({0, height() * PFEILSCHRITT});
    case Qt::Key_Down:
        return verschiebe({0, -height() * PFEILSCHRITT});
    default:
        QWidget::keyPressEvent(ereignis);
    }
}

} // namespace quelvarn
