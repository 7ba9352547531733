#pragma once

#include <QWidget>

#include <array>
#include <functional>

class QStackedWidget;
class QTimer;

namespace quelvarn {

class Appearance;
class MainWindow;
class PageButton;
class StatusBarUpdate;
class ToolbarMidiFrm;
struct SessionUser;

// The frame of the program: the ways to the pages, tool bar, the page in front, change indicators.
class MDIForm1 : public QWidget
{
    Q_OBJECT

public:
    MDIForm1(MainWindow& model, const SessionUser& user, const Appearance& appearance);

    // In the order start page, filter page, document page.
    void setPages(QWidget& start, QWidget& filter, QWidget& documents);
    void refresh();
    // The dates of the last scans, by tab of the five file types.
    void showChanges(const std::array<std::string, 5>& texts);
    // Fixed or free, as the appearance says now.
    void configureSize();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* newHeading();
    // Guarded, and started again behind each tick.
    QTimer* newTimerSetting(const char* name, std::function<void()> tick);
    void showTimers();

    MainWindow& model_;
    const SessionUser& user_;
    const Appearance& appearance_;
    std::array<PageButton*, 3> pageButtons_{};
    ToolbarMidiFrm* tools_;
    QStackedWidget* pages_;
    StatusBarUpdate* status_;
    QTimer* timerDBUpdate_;
    QTimer* timerCheckInOut_;
};

} // namespace quelvarn
