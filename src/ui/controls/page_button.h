#pragma once

#include <QFrame>

#include <functional>
#include <string>
#include <string_view>

class QToolButton;

namespace quelvarn {

// The way to a page: a picture and a label that act as one.
class PageButton : public QFrame
{
    Q_OBJECT

public:
    // The names end in `name`: "ImgStart" and "LblStart" for "Start".
    PageButton(std::string_view name, const QString& text, std::string_view picture);

    void showActive(bool active);
    std::function<void()> chosen;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    std::string icon_;
    QToolButton* picture_;
    QToolButton* text_;
};

} // namespace quelvarn
