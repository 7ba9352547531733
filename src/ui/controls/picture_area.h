#pragma once

#include "ui/controls/picture_levels.h"

#include <QWidget>

namespace quelvarn {

// A picture on a page: fits into its place until a person zooms with wheel or keys, and is moved by dragging.
class Bildflaeche : public QWidget
{
    Q_OBJECT

public:
    Bildflaeche();

    void zeige(Bildseite seite);
    // No picture, but a word about it.
    void zeigeText(const QString& text);
    const Bildseite& seite() const { return seite_; }

    void passeEin();
    // About the middle of the place.
    void zoome(double faktor);
    double massstab() const { return massstab_; } // Pixels of the screen for one of the picture.

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void wheelEvent(QWheelEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    void zoomeUm(const QPointF& stelle, double faktor);
    void verschiebe(const QPointF& um);
    void halteImRahmen();
    double passenderMassstab() const;
    std::size_t stufe() const;
    void zeichneBild(QPainter& painter) const;

    Bildseite seite_;
    QString text_;
    bool eingepasst_ = true;
    double massstab_ = 1;
    QPointF ecke_; // Where the picture's left upper corner stands.
    QPointF gezogenAb_;
};

} // namespace quelvarn
