#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;
class QTableView;

namespace quelvarn {

class FilterPage;
class Hauptwertmodell;
class Werttabelle;

// The running filter: its steps, the statuses, and the bounds of the main values while their tab is in front.
class LaufenderFilter : public QWidget
{
    Q_OBJECT

public:
    explicit LaufenderFilter(FilterPage& modell);

    void zeigen();
    void takeInput();              // A value that is being written counts.
    std::function<void()> filtern; // Enter on a step.

    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override;

private:
    QWidget* neuerKopf();
    void baueSchritte();
    void baueHauptwerte();
    void zeigeStatus();

    FilterPage& modell_;
    QLabel* LblKopfFilterWerte_;
    QPushButton* CmChangeStar_;
    Werttabelle* DataGridFilterEigenMerk_;
    Werttabelle* DataGridStatus_;
    QTableView* DGFilternWerte_;
    Hauptwertmodell* hauptwerte_;
};

} // namespace quelvarn
