#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;
class QTableView;

namespace quelvarn {

class FilterPage;
class MainValueModel;
class ValueTable;

// The running filter: its steps, the statuses, and the bounds of the main values while their tab is in front.
class RunningFilter : public QWidget
{
    Q_OBJECT

public:
    explicit RunningFilter(FilterPage& model);

    void refresh();
    void takeInput();             // A value that is being written counts.
    std::function<void()> filter; // Enter on a step.

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    QWidget* newHeading();
    void buildSteps();
    void buildMainValues();
    void showStatus();

    FilterPage& model_;
    QLabel* LblKopfFilterWerte_;
    QPushButton* CmChangeStar_;
    ValueTable* DataGridFilterEigenMerk_;
    ValueTable* DataGridStatus_;
    QTableView* DGFilternWerte_;
    MainValueModel* mainValues_;
};

} // namespace quelvarn
