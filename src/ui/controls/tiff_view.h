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

class Bildflaeche;

// Shows the pages of a TIFF or another picture file. Loading runs beside the window; a file that is none is told.
class TiffAnsicht : public QWidget
{
    Q_OBJECT

public:
    explicit TiffAnsicht(const char* name);
    ~TiffAnsicht() override;

    // The system's path; "" for no picture. The file that is shown already is not loaded again.
    void zeige(const QString& datei);
    // The file could not be read; nothing is shown by then.
    std::function<void()> nichtGeladen;

protected:
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    QToolBar* neueKnoepfe(const char* name);
    void ladeSeite(int nummer);
    void geladen();
    void blaettere(int um);

    Bildflaeche* flaeche_;
    QToolBar* leiste_;
    QAction* zurueck_ = nullptr;
    QAction* vor_ = nullptr;
    QLabel* LblSeite_;
    QAction* seitenfeld_ = nullptr;
    QString datei_;
    QFutureWatcher<Bildseite> lader_;
    // The number of the page wanted last; what a worker was asked before that is not worth the time any more.
    std::shared_ptr<std::atomic<int>> gewuenscht_ = std::make_shared<std::atomic<int>>(0);
};

} // namespace quelvarn
