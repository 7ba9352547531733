#pragma once

#include <QLabel>

namespace quelvarn {

// Room at the left of a value for letters that reach beyond their place, such as J.
constexpr int OVERHANG = 2;

// A label that wraps its text at words, and anywhere within a word that is longer than the line, such as a path. Of a
// text that is very long it shows the beginning, and how much is left.
class WrappingLabel : public QLabel
{
    Q_OBJECT

public:
    // Letters: shown at most.
    explicit WrappingLabel(qsizetype letters = 4000);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString shownText() const;

    qsizetype letters_;
};

} // namespace quelvarn
