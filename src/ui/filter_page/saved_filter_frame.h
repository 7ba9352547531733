#pragma once

#include <QGroupBox>

class QLabel;
class QLineEdit;

namespace quelvarn {

class FilterPage;
class Wertekombo;

// FrmFilterSave: saved filters of the document type, and the field that names a new one.
class GespeicherteFilterRahmen : public QGroupBox
{
    Q_OBJECT

public:
    explicit GespeicherteFilterRahmen(FilterPage& modell);

    void zeigen();
    std::function<void()> beforeSaving;

private:
    QWidget* neueAuswahl();
    QWidget* neuesSpeichern();
    std::string gewaehlter() const;

    FilterPage& modell_;
    QLabel* LblAnzFilterwerte_;
    Wertekombo* CbFilterSave_;
    QLineEdit* TxtFilterSave_;
};

} // namespace quelvarn
