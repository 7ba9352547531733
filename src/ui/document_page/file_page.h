#pragma once

#include <QWidget>

#include <array>

class QCheckBox;
class QLabel;

namespace quelvarn {

class InfoPanel;

// The file properties page (FrmInfoDoku 10). Its labels are the array LblDat.
class Dateiansicht : public QWidget
{
    Q_OBJECT

public:
    explicit Dateiansicht(InfoPanel& modell);

    void zeigen();

private:
    QCheckBox* neuerKasten(const char* name, const QString& text, void (InfoPanel::*setze)(bool));

    InfoPanel& modell_;
    std::array<QLabel*, 6> werte_{};
    QCheckBox* ChDatReadOnly_;
    QCheckBox* ChDatArchiv_;
};

} // namespace quelvarn
