#pragma once

#include <QGroupBox>

class QLabel;
class QLineEdit;

namespace quelvarn {

class FilterPage;
class ValueCombo;

// FrmFilterSave: saved filters of the document type, and the field that names a new one.
class SavedFilterFrame : public QGroupBox
{
    Q_OBJECT

public:
    explicit SavedFilterFrame(FilterPage& model);

    void refresh();
    std::function<void()> beforeSaving;

private:
    QWidget* newSelection();
    QWidget* newSave();
    std::string chosen() const;

    FilterPage& model_;
    QLabel* LblAnzFilterwerte_;
    ValueCombo* CbFilterSave_;
    QLineEdit* TxtFilterSave_;
};

} // namespace quelvarn
