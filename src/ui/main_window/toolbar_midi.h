#pragma once

#include "session/main_window.h"

#include <QToolBar>

#include <array>

namespace quelvarn {

// The frame's tool bar. It drops its pictures when not all captions would fit beside them.
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

    MainWindow& modell_;
    std::array<QAction*, ANZAHL_WERKZEUGE> knoepfe_{};
    QAction* weiterleitenInExtras_ = nullptr;
    std::array<QAction*, 2> trenner_{};
};

} // namespace quelvarn
