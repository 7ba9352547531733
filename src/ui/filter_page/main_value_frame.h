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

class KurzLabel;
class Strukturbereich;
class Wertefeld;
class Wertemodell;

// FrmHWag: the main values a to g with their bands, and what the one chosen is to be.
class Hauptwertrahmen : public QGroupBox
{
    Q_OBJECT

public:
    explicit Hauptwertrahmen(Strukturbereich& modell);

    void zeigen();

private:
    QWidget* neueHauptwerte();
    void baueWert(QVBoxLayout& aufbau);
    void baueAlias(QVBoxLayout& aufbau);
    void verbinde();
    void uebernehmen();
    void zeigeHauptwerte();
    void zeigeBereit();

    Strukturbereich& modell_;
    QButtonGroup* auswahl_;
    std::array<QRadioButton*, ANZAHL_HAUPTWERTE> LblHW_{};
    std::array<KurzLabel*, ANZAHL_HAUPTWERTE> Lbl_hw_{};
    QComboBox* CbHW_;
    Wertemodell* werte_;
    QCheckBox* ChShowAnzWerte_;
    QLabel* LblAnzWert_;
    QLineEdit* TextBB_;
    QPushButton* CmHwOK_;
    QCheckBox* ChShowAnzAlias_;
    QLabel* LblAnzAlias_;
    Wertefeld* LstHW_;
};

} // namespace quelvarn
