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
    explicit ToolbarMidiFrm(MainWindow& model);

    void refresh();
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildButton(Tool tool);
    void buildExtras(QAction& button);
    void adjust();
    QToolButton& key(Tool tool);

    MainWindow& model_;
    std::array<QAction*, TOOL_COUNT> buttons_{};
    QAction* forwardInExtras_ = nullptr;
    std::array<QAction*, 2> separator_{};
};

} // namespace quelvarn
