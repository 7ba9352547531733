#pragma once

#include "ui/controls/picture_levels.h"

#include <QWidget>

namespace quelvarn {

// A picture on a page: fits into its place until a person zooms with wheel or keys, and is moved by dragging.
class PictureArea : public QWidget
{
    Q_OBJECT

public:
    PictureArea();

    void display(PicturePage page);
    // No picture, but a word about it.
    void showText(const QString& text);
    const PicturePage& page() const { return page_; }

    void fit();
    // About the middle of the place.
    void zoom(double factor);
    double scale() const { return scale_; } // Pixels of the screen for one of the picture.

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void zoomBy(const QPointF& position, double factor);
    void move(const QPointF& around);
    void holdInFrame();
    double fittingScale() const;
    std::size_t level() const;
    void drawPicture(QPainter& painter) const;

    PicturePage page_;
    QString text_;
    bool fitted_ = true;
    double scale_ = 1;
    QPointF corner_; // Where the picture's left upper corner stands.
    QPointF drawnFrom_;
};

} // namespace quelvarn
