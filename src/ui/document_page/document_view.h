#pragma once

#include <QWidget>

#include <functional>
#include <vector>

class QTabWidget;

namespace quelvarn {

class Infobereich;
class KurzLabel;
class LinkeLeistenansicht;
class ObereLeistenansicht;
class QtViewer;
class StatusBarDatei;
class Tabellenansicht;
struct Program;

// The document page: tables with their property trees on the left, one information page on the right.
class FormSEDoku : public QWidget
{
    Q_OBJECT

public:
    FormSEDoku(Program& program, QtViewer& viewer);

    void zeigen();
    void refreshRows(); // The tables with their trees alone.
    // The bar at the left with its panels alone.
    void zeigeLinks();
    // The bar over the tables with the list of favourites alone.
    void zeigeOben();

private:
    QWidget* neueKopfzeile();
    QWidget* neueLeiste();
    QWidget* neueMitte();
    QWidget* neueTabellenseite();
    QTabWidget* neueReiter();
    void baueTasten();
    void zeigeReiter();
    void zeigeViewerseite();
    // What the keyboard is for: the table, or the viewer in its place.
    QWidget& mainControl() const;

    Program& program_;
    QtViewer& viewer_;
    QWidget* FrmDokuSmartView_Doku_ = nullptr;
    QWidget* FrmDokuSmartView_SmartView_ = nullptr;
    KurzLabel* LabelSEDoku_;
    KurzLabel* LblZugriffSEDoku_;
    ObereLeistenansicht* oben_;
    LinkeLeistenansicht* links_;
    QTabWidget* SSTabDGDoku_;
    std::vector<Tabellenansicht*> tabellen_;
    Infobereich* info_;
    StatusBarDatei* status_;
};

} // namespace quelvarn
