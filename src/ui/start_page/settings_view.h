#pragma once

#include <QWidget>

#include <vector>

class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace quelvarn {

class ShortLabel;
class StartPage;
struct OptionGroup;

// The settings of the user on the start page.
class Settings : public QWidget
{
    Q_OBJECT

public:
    Settings(StartPage& model, QWidget* appearance);

    void refresh();

private:
    QWidget* newSolidEdge();
    QGroupBox* newActiveSE();
    QGroupBox* newSwitches(const OptionGroup& group, std::vector<QCheckBox*>& boxes);
    QGroupBox* newOfflinePlot();
    QGroupBox* newOfflineOrder();

    StartPage& model_;
    ShortLabel* version_;
    ShortLabel* path_;
    QGroupBox* FrmActiveSE_;
    QPushButton* TggBtActiveSE_;
    QLabel* LblActiveSE_;
    std::vector<QCheckBox*> ChInfoPrio1_;
    std::vector<QCheckBox*> ChInfoPrio2_;
    std::vector<QRadioButton*> OpOfflinePlot_;
    QCheckBox* ChLocalOrder_;
};

} // namespace quelvarn
