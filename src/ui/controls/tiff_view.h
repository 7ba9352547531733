#pragma once

#include "ui/controls/picture_levels.h"

#include <QFutureWatcher>
#include <QWidget>

#include <atomic>
#include <functional>
#include <memory>

class QAction;
class QLabel;
class QToolBar;

namespace quelvarn {

class PictureArea;

// Shows the pages of a TIFF or another picture file. Loading runs beside the window; a file that is none is told.
class TiffView : public QWidget
{
    Q_OBJECT

public:
    explicit TiffView(const char* name);
    ~TiffView() override;

    // The system's path; "" for no picture. The file that is shown already is not loaded again.
    void display(const QString& file);
    // The file could not be read; nothing is shown by then.
    std::function<void()> notLoaded;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QToolBar* newButtons(const char* name);
    void loadPage(int number);
    void loaded();
    void turnPage(int around);

    PictureArea* area_;
    QToolBar* bar_;
    QAction* back_ = nullptr;
    QAction* before_ = nullptr;
    QLabel* pageLabel_;
    QAction* pageField_ = nullptr;
    QString file_;
    QFutureWatcher<PicturePage> loader_;
    // The number of the page wanted last; what a worker was asked before that is not worth the time any more.
    std::shared_ptr<std::atomic<int>> wanted_ = std::make_shared<std::atomic<int>>(0);
};

} // namespace quelvarn
