#pragma once

#include "frame/main_window.h"

#include <QToolBar>

#include <array>

class QToolButton;

namespace quelvarn {

// The frame's tool bar. Where not all captions fit, some buttons show only their pictures.
class ToolbarMidiFrm : public QToolBar
{
    Q_OBJECT

public:
    explicit ToolbarMidiFrm(MainWindow& modell);

    void zeigen();
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    void baueKnopf(Werkzeug werkzeug);
    void baueExtras(QAction& knopf);
    void passeAn();
    QToolButton& taste(Werkzeug werkzeug);

    MainWindow& modell_;
    std::array<QAction*, ANZAHL_WERKZEUGE> knoepfe_{};
    QAction* weiterleitenInExtras_ = nullptr;
    std::array<QAction*, 2> trenner_{};
};

} // namespace quelvarn
