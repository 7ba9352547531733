#pragma once

#include "filter/filter_state.h"

#include <QGroupBox>

#include <array>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

namespace quelvarn {

class ShortLabel;
class StructureSection;
class ValueField;
class ValueModel;

// FrmHWag: the main values a to g with their bands, and what the one chosen is to be.
class MainValueFrame : public QGroupBox
{
    Q_OBJECT

public:
    explicit MainValueFrame(StructureSection& model);

    void refresh();

private:
    QWidget* newMainValues();
    void buildValue(QVBoxLayout& layout);
    void buildAlias(QVBoxLayout& layout);
    void connectControls();
    void adopt();
    void showMainValues();
    void showReady();

    StructureSection& model_;
    QButtonGroup* selection_;
    std::array<QRadioButton*, MAIN_VALUE_COUNT> LblHW_{};
    std::array<ShortLabel*, MAIN_VALUE_COUNT> Lbl_hw_{};
    QComboBox* CbHW_;
    ValueModel* values_;
    QCheckBox* ChShowAnzWerte_;
    QLabel* LblAnzWert_;
    QLineEdit* TextBB_;
    QPushButton* CmHwOK_;
    QCheckBox* ChShowAnzAlias_;
    QLabel* LblAnzAlias_;
    ValueField* LstHW_;
};

} // namespace quelvarn
