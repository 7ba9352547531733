#pragma once

#include <QWidget>

class QStackedWidget;
class QTabWidget;
class QToolBar;

namespace quelvarn {

class UserDefinedTab;
class PropertyTab;
class FilterPage;
class ProgressField;
class SavedFilterFrame;
class ShortLabel;
class RunningFilter;
class StructureTab;

// The filter page: three parts for what is to be filtered, below them the running filter and the saved ones.
class FormSEFiltern : public QWidget
{
    Q_OBJECT

public:
    // `vorlage` is the place where a viewer shows the template of a branch.
    FormSEFiltern(FilterPage& model, QWidget& drawingTemplate);

    void refresh();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* newHeadingRow();
    QWidget* newBar();
    QWidget* newContent();
    QWidget* newStatusRow();
    void buildTabs();
    void buildShortcuts();
    void filter();
    void showBar();
    void showTab();

    FilterPage& model_;
    ShortLabel* pageHeading_;
    ShortLabel* LblZugriffSEFiltern_;
    QToolBar* ToolbarSEFilter_;
    QStackedWidget* FrmGesamtFilter_;
    QTabWidget* SSTabDGFilter_;
    PropertyTab* properties_;
    StructureTab* structure_;
    UserDefinedTab* userDefined_;
    RunningFilter* filter_;
    SavedFilterFrame* saved_;
    QWidget* drawingTemplate_;
    ShortLabel* fileName_;
    ShortLabel* pathName_;
    ProgressField* progress_;
};

} // namespace quelvarn
