#pragma once

#include "filter/filter_state.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QGroupBox;
class QLabel;

namespace quelvarn {

class BenutzDefBereich;
class FilterPage;
class KurzLabel;
class Wertefeld;
class Wertekombo;

// Tab 2 of the filter page: names and values of the user-defined properties, and the four additional filters.
class BenutzDefReiter : public QWidget
{
    Q_OBJECT

public:
    explicit BenutzDefReiter(FilterPage& modell);

    void zeigen();

private:
    QWidget* neueNamen();
    QWidget* neueWerte();
    QWidget* neueZusaetze();
    void zeigeZusaetze();

    FilterPage& modell_;
    BenutzDefBereich& benutzDef_;
    QGroupBox* FrmBenutzDef_;
    QLabel* LblAnzEigenBenutzDef_;
    Wertefeld* DLstBenutzDefName_;
    KurzLabel* LblNaemWert_;
    QCheckBox* ChReceiver_;
    Wertefeld* DLstBenutzDefWert_;
    std::array<QLabel*, ANZAHL_ZUSBENUTZDEF> LblEigenZus_{};
    std::array<QLabel*, ANZAHL_ZUSBENUTZDEF> LblAnzZus_{};
    std::array<Wertekombo*, ANZAHL_ZUSBENUTZDEF> CbEigenBenutzDef_{};
};

} // namespace quelvarn
