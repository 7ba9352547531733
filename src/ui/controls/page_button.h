#pragma once

#include <QFrame>

#include <functional>
#include <string>
#include <string_view>

class QToolButton;

namespace quelvarn {

// The way to a page: a picture and a label that act as one.
class Seitenknopf : public QFrame
{
    Q_OBJECT

public:
    // The names end in `name`: "ImgStart" and "LblStart" for "Start".
    Seitenknopf(std::string_view name, const QString& text, std::string_view bild);

    void zeigeAktiv(bool aktiv);
    std::function<void()> gewaehlt;

protected:
    void mouseReleaseEvent(QMouseEvent* ereignis) override;

private:
    std::string symbol_;
    QToolButton* bild_;
    QToolButton* text_;
};

} // namespace quelvarn
