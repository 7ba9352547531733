#pragma once

#include "ui/controls/elided_label.h"

namespace quelvarn {

// A filled dot in the colour of a document's status.
class Statuspunkt : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    void setzeFarbe(unsigned rgb);
    QSize sizeHint() const override { return {10, 10}; }

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    unsigned rgb_ = 0;
};

// A text in the colour of a document's status, as readable as the appearance of the moment needs it.
class Statustext : public KurzLabel
{
    Q_OBJECT

public:
    using KurzLabel::KurzLabel;

    void setzeFarbe(unsigned rgb);

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    unsigned rgb_ = 0;
};

} // namespace quelvarn
