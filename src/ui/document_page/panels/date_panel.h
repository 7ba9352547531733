#pragma once

#include <QFrame>

class QButtonGroup;
class QCheckBox;
class QLabel;
class QSlider;

namespace quelvarn {

class LinkeLeiste;

// The panel that narrows the table by date (FrmFilternDatum).
class Datumspanel : public QFrame
{
    Q_OBJECT

public:
    explicit Datumspanel(LinkeLeiste& modell);

    void zeigen();

private:
    QWidget* neuesFrmErstAend();
    QCheckBox* neuesChAnwender();
    QSlider* neuerSliderTage();
    QWidget* neuerKnopf(const char* name, const QString& text, const std::function<void()>& tue);

    LinkeLeiste& modell_;
    QButtonGroup* OpErstAend_;
    QCheckBox* ChAnwender_;
    QSlider* SliderTage_;
    QLabel* LblTage_;
    QLabel* LblZeitRaum_;
};

} // namespace quelvarn
