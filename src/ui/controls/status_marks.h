#pragma once

#include "ui/controls/elided_label.h"

namespace quelvarn {

// A filled dot in the colour of a document's status.
class StatusDot : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    void setColour(unsigned rgb);
    QSize sizeHint() const override { return {10, 10}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    unsigned rgb_ = 0;
};

// A text in the colour of a document's status, as readable as the appearance of the moment needs it.
class StatusCaption : public ShortLabel
{
    Q_OBJECT

public:
    using ShortLabel::ShortLabel;

    void setColour(unsigned rgb);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    unsigned rgb_ = 0;
};

} // namespace quelvarn
