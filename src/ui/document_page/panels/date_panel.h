#pragma once

#include <QFrame>

class QButtonGroup;
class QCheckBox;
class QLabel;
class QSlider;

namespace quelvarn {

class LeftBar;

// The panel that narrows the table by date (FrmFilternDatum).
class DatePanel : public QFrame
{
    Q_OBJECT

public:
    explicit DatePanel(LeftBar& model);

    void refresh();

private:
    QWidget* newFrmErstAend();
    QCheckBox* newChAnwender();
    QSlider* newSliderTage();
    QWidget* newButton(const char* name, const QString& text, const std::function<void()>& act);

    LeftBar& model_;
    QButtonGroup* OpErstAend_;
    QCheckBox* ChAnwender_;
    QSlider* SliderTage_;
    QLabel* dayCount_;
    QLabel* LblZeitRaum_;
};

} // namespace quelvarn
