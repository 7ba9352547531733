#pragma once

#include <QWidget>

#include <functional>
#include <vector>

class QTabWidget;

namespace quelvarn {

class InfoArea;
class ShortLabel;
class LeftBarView;
class TopBarView;
class QtViewer;
class StatusBarDatei;
class TableView;
struct Program;

// The document page: tables with their property trees on the left, one information page on the right.
class FormSEDoku : public QWidget
{
    Q_OBJECT

public:
    FormSEDoku(Program& program, QtViewer& viewer);

    void refresh();
    void refreshRows(); // The tables with their trees alone.
    // The bar at the left with its panels alone.
    void showLeft();
    // The bar over the tables with the list of favourites alone.
    void showAbove();

private:
    QWidget* newHeadingRow();
    QWidget* newBar();
    QWidget* newMiddle();
    QWidget* newTablePage();
    QTabWidget* newTabs();
    void buildShortcuts();
    void showTab();
    void showViewerPage();
    // What the keyboard is for: the table, or the viewer in its place.
    QWidget& mainControl() const;

    Program& program_;
    QtViewer& viewer_;
    QWidget* FrmDokuSmartView_Doku_ = nullptr;
    QWidget* FrmDokuSmartView_SmartView_ = nullptr;
    ShortLabel* LabelSEDoku_;
    ShortLabel* LblZugriffSEDoku_;
    TopBarView* above_;
    LeftBarView* left_;
    QTabWidget* SSTabDGDoku_;
    std::vector<TableView*> tables_;
    InfoArea* info_;
    StatusBarDatei* status_;
};

} // namespace quelvarn
