#pragma once

#include <QFrame>

#include <array>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace quelvarn {

class LinkeLeiste;

// The panel that finds rows, or narrows the table, by a piece of text (FrmSuchenFiltern).
class Suchpanel : public QFrame
{
    Q_OBJECT

public:
    explicit Suchpanel(LinkeLeiste& modell);

    void zeigen();
    // Where the next text is typed.
    void nimmFokus();
    void weitersuchen();

private:
    QComboBox* neuesCombSuchStr();
    QLineEdit* neuesTextDocuBez();
    QCheckBox* neuesChDynSuchen();
    QPushButton* neuerKnopf(const char* name, const QString& text, void (Suchpanel::*tue)());
    void baueOptionen(QHBoxLayout& reihe);
    void suchen();
    void filtern();
    void sucheText(const QString& text);
    void textGetippt(const QString& text);
    void zeigeSuchtexte();
    void zeigeSchritt();

    LinkeLeiste& modell_;
    QButtonGroup* felder_;
    QButtonGroup* verfahren_;
    QComboBox* CombSuchStr_;
    QLineEdit* TextDocuBez_;
    QCheckBox* ChDynSuchen_;
    QPushButton* CmDokuDateiFiltern_ = nullptr;
    QLabel* LblFilterStep1_;
};

} // namespace quelvarn
