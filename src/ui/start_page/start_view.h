#pragma once

#include <QWidget>

namespace quelvarn {

class Dateiwaehler;
class Einstellungen;
class KurzLabel;
class StartPage;

// The start page: choosing the database, and the settings of the user.
class FormDB : public QWidget
{
    Q_OBJECT

public:
    // `darstellung` is the frame with this computer's appearance; the page takes it over.
    FormDB(StartPage& modell, QWidget* darstellung);

    void zeigen();

private:
    QWidget* neueKopfzeile();
    QWidget* neueLeiste();
    QWidget* neueStatuszeile();

    StartPage& modell_;
    KurzLabel* LabelDB_;
    Dateiwaehler* waehler_;
    Einstellungen* einstellungen_;
    KurzLabel* dateiname_;
    KurzLabel* pfadname_;
};

} // namespace quelvarn
