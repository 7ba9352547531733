#pragma once

#include "filter/filter_state.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QGroupBox;
class QLabel;

namespace quelvarn {

class UserDefinedSection;
class FilterPage;
class ShortLabel;
class ValueField;
class ValueCombo;

// Tab 2 of the filter page: names and values of the user-defined properties, and the four additional filters.
class UserDefinedTab : public QWidget
{
    Q_OBJECT

public:
    explicit UserDefinedTab(FilterPage& model);

    void refresh();

private:
    QWidget* newNames();
    QWidget* newValues();
    QWidget* newAdditions();
    void showAdditions();

    FilterPage& model_;
    UserDefinedSection& userDefined_;
    QGroupBox* FrmBenutzDef_;
    QLabel* LblAnzEigenBenutzDef_;
    ValueField* DLstBenutzDefName_;
    ShortLabel* LblNaemWert_;
    QCheckBox* ChReceiver_;
    ValueField* DLstBenutzDefWert_;
    std::array<QLabel*, ADDITIONAL_VALUE_COUNT> additionalLabels_{};
    std::array<QLabel*, ADDITIONAL_VALUE_COUNT> additionalCounts_{};
    std::array<ValueCombo*, ADDITIONAL_VALUE_COUNT> CbEigenBenutzDef_{};
};

} // namespace quelvarn
