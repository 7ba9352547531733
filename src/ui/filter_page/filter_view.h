#pragma once

#include <QWidget>

class QStackedWidget;
class QTabWidget;
class QToolBar;

namespace quelvarn {

class BenutzDefReiter;
class Eigenschaftsreiter;
class FilterPage;
class Fortschrittsfeld;
class GespeicherteFilterRahmen;
class KurzLabel;
class LaufenderFilter;
class Strukturreiter;

// The filter page: three parts for what is to be filtered, below them the running filter and the saved ones.
class FormSEFiltern : public QWidget
{
    Q_OBJECT

public:
    // `vorlage` is the place where a viewer shows the template of a branch.
    FormSEFiltern(FilterPage& modell, QWidget& vorlage);

    void zeigen();

protected:
    void showEvent(QShowEvent* ereignis) override;

private:
    QWidget* neueKopfzeile();
    QWidget* neueLeiste();
    QWidget* neuerInhalt();
    QWidget* neueStatuszeile();
    void baueReiter();
    void baueTasten();
    void filtern();
    void zeigeLeiste();
    void zeigeReiter();

    FilterPage& modell_;
    KurzLabel* LblKopfSEFiltern_;
    KurzLabel* LblZugriffSEFiltern_;
    QToolBar* ToolbarSEFilter_;
    QStackedWidget* FrmGesamtFilter_;
    QTabWidget* SSTabDGFilter_;
    Eigenschaftsreiter* eigenschaften_;
    Strukturreiter* struktur_;
    BenutzDefReiter* benutzDef_;
    LaufenderFilter* filter_;
    GespeicherteFilterRahmen* gespeicherte_;
    QWidget* vorlage_;
    KurzLabel* dateiname_;
    KurzLabel* pfadname_;
    Fortschrittsfeld* fortschritt_;
};

} // namespace quelvarn
