#pragma once

#include <QWidget>

#include <vector>

class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace quelvarn {

class KurzLabel;
class StartPage;
struct Schaltergruppe;

// The settings of the user on the start page.
class Einstellungen : public QWidget
{
    Q_OBJECT

public:
    Einstellungen(StartPage& modell, QWidget* darstellung);

    void zeigen();

private:
    QWidget* neuesSolidEdge();
    QGroupBox* neuesActiveSE();
    QGroupBox* neueSchalter(const Schaltergruppe& gruppe, std::vector<QCheckBox*>& kaesten);
    QGroupBox* neuesOfflinePlot();
    QGroupBox* neuesOfflineOrder();

    StartPage& modell_;
    KurzLabel* version_;
    KurzLabel* pfad_;
    QGroupBox* FrmActiveSE_;
    QPushButton* TggBtActiveSE_;
    QLabel* LblActiveSE_;
    std::vector<QCheckBox*> ChInfoPrio1_;
    std::vector<QCheckBox*> ChInfoPrio2_;
    std::vector<QRadioButton*> OpOfflinePlot_;
    QCheckBox* ChLocalOrder_;
};

} // namespace quelvarn
