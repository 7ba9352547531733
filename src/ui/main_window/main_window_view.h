#pragma once

#include <QWidget>

#include <array>
#include <functional>

class QStackedWidget;
class QTimer;

namespace quelvarn {

class Darstellung;
class MainWindow;
class Seitenknopf;
class StatusBarUpdate;
class ToolbarMidiFrm;
struct SessionState;

// The frame of the program: the ways to the pages, tool bar, the page in front, change indicators.
class MDIForm1 : public QWidget
{
    Q_OBJECT

public:
    MDIForm1(MainWindow& modell, const SessionState& session, const Darstellung& darstellung);

    // In the order start page, filter page, document page.
    void setzeSeiten(QWidget& start, QWidget& filter, QWidget& dokumente);
    void zeigen();
    // The dates of the last scans, by tab of the five file types.
    void zeigeAenderungen(const std::array<std::string, 5>& texte);
    // Fixed or free, as the appearance says now.
    void stelleGroesseEin();

protected:
    void changeEvent(QEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

private:
    QWidget* neuerKopf();
    // Guarded, and started again behind each tick.
    QTimer* neuerZeitgeber(const char* name, std::function<void()> tick);
    void zeigeZeitgeber();

    MainWindow& modell_;
    const SessionState& session_;
    const Darstellung& darstellung_;
    std::array<Seitenknopf*, 3> seitenknoepfe_{};
    ToolbarMidiFrm* werkzeuge_;
    QStackedWidget* seiten_;
    StatusBarUpdate* status_;
    QTimer* timerDBUpdate_;
    QTimer* timerCheckInOut_;
};

} // namespace quelvarn
