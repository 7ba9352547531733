#include "ui/controls/picture_area.h"

#include "ui/theme/colours.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quelvarn {

namespace {

constexpr double STEP = 1.25;           // Of the zoom
constexpr double GREATEST_SCALE = 8;    // Pixels of the screen for one of the picture
constexpr double NOTCH = 120;           // Of the wheel
constexpr double ARROW_STEP = 0.1;      // Of the place
constexpr double MARGIN = 8;            // Around a picture that fits
constexpr double NO_SMOOTHING_FROM = 3; // From here on the dots themselves are wanted.

} // namespace

PictureArea::PictureArea()
{
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(80, 80);
}

void PictureArea::display(PicturePage page)
{
    page_ = std::move(page);
    text_.clear();
    fit();
    setCursor(Qt::OpenHandCursor);
}

void PictureArea::showText(const QString& text)
{
    page_ = {};
    text_ = text;
    unsetCursor();
    update();
}

double PictureArea::fittingScale() const
{
    const double wide = (width() - 2 * MARGIN) / std::max(1.0, page_.sizes.width());
    const double high = (height() - 2 * MARGIN) / std::max(1.0, page_.sizes.height());
    return std::clamp(std::min(wide, high), 1e-4, 1.0);
}

void PictureArea::fit()
{
    fitted_ = true;
    scale_ = fittingScale();
    holdInFrame();
}

void PictureArea::zoom(double factor)
{
    zoomBy(QPointF(width() / 2.0, height() / 2.0), factor);
}

void PictureArea::zoomBy(const QPointF& position, double factor)
{
    if (page_.levels.empty())
        return;
    const double smallest = fittingScale();
    const double newScale = std::clamp(scale_ * factor, smallest, std::max(smallest, GREATEST_SCALE));
    corner_ = position - (position - corner_) * (newScale / scale_);
    scale_ = newScale;
    fitted_ = newScale <= smallest;
    holdInFrame();
}

void PictureArea::move(const QPointF& around)
{
    corner_ += around;
    holdInFrame();
}

// A picture smaller than the place stands in its middle; a larger one always fills it.
void PictureArea::holdInFrame()
{
    const auto hold = [](double position, double picture, double place) {
        return picture <= place ? (place - picture) / 2 : std::clamp(position, place - picture, 0.0);
    };
    corner_ = {hold(corner_.x(), page_.sizes.width() * scale_, width()),
               hold(corner_.y(), page_.sizes.height() * scale_, height())};
    update();
}

// The smallest level that still has a dot for each pixel of the screen.
std::size_t PictureArea::level() const
{
    const double density = scale_ * devicePixelRatioF() * page_.sizes.width() / page_.levels.front().width();
    const double wish = std::floor(std::log2(1 / density));
    return static_cast<std::size_t>(std::clamp(wish, 0.0, static_cast<double>(page_.levels.size() - 1)));
}

void PictureArea::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), colourSet().strip);
    if (!page_.levels.empty())
        return drawPicture(painter);
    painter.setPen(colourSet().muted);
    painter.drawText(rect().adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap, text_);
}

// Only the part that is seen is turned into something that can be drawn.
void PictureArea::drawPicture(QPainter& painter) const
{
    const QImage& picture = page_.levels[level()];
    const double landscape =
        page_.sizes.width() * scale_ / picture.width(); // Pixels of the screen for one of the level
    const double high = page_.sizes.height() * scale_ / picture.height();
    const QRectF visible((0 - corner_.x()) / landscape, (0 - corner_.y()) / high, width() / landscape, height() / high);
    const QRect crop = visible.toAlignedRect().adjusted(-1, -1, 1, 1).intersected(picture.rect());
    if (crop.isEmpty())
        return;
    QImage part = picture.copy(crop);
    if (part.depth() == 1)
        part = std::move(part).convertToFormat(QImage::Format_Grayscale8);
    const QRectF target(corner_.x() + crop.x() * landscape, corner_.y() + crop.y() * high, crop.width() * landscape,
                        crop.height() * high);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, landscape * devicePixelRatioF() < NO_SMOOTHING_FROM);
    painter.drawImage(target, part);
}

void PictureArea::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (fitted_)
        fit();
    else
        holdInFrame();
}

void PictureArea::wheelEvent(QWheelEvent* event)
{
    zoomBy(event->position(), std::pow(STEP, event->angleDelta().y() / NOTCH));
    event->accept();
}

void PictureArea::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || page_.levels.empty())
        return QWidget::mousePressEvent(event);
    drawnFrom_ = event->position();
    setCursor(Qt::ClosedHandCursor);
}

void PictureArea::mouseMoveEvent(QMouseEvent* event)
{
    if (!event->buttons().testFlag(Qt::LeftButton))
        return QWidget::mouseMoveEvent(event);
    move(event->position() - drawnFrom_);
    drawnFrom_ = event->position();
}

void PictureArea::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && !page_.levels.empty())
        setCursor(Qt::OpenHandCursor);
}

void PictureArea::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
        return zoom(STEP);
    case Qt::Key_Minus:
        return zoom(1 / STEP);
    case Qt::Key_0:
        return fit();
    case Qt::Key_Left:
        return move({width() * ARROW_STEP, 0});
    case Qt::Key_Right:
        return move({-width() * ARROW_STEP, 0});
    case Qt::Key_Up:
        return move({0, height() * ARROW_STEP});
    case Qt::Key_Down:
        return move({0, -height() * ARROW_STEP});
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace quelvarn
