#pragma once

#include <QWidget>

#include <functional>
#include <map>
#include <vector>

class QLabel;
class QStackedWidget;

namespace quelvarn {

class Allgemeinansicht;
class Dateiansicht;
class InfoPanel;
class RelationActions;
class KurzLabel;
class Listenseite;
class LongText;
class QtViewer;
class Tiffseite;
class Verwendungsansicht;
enum class InfoSeite : int;

// The right-hand side of the document page: one information page at a time under the head of the document type.
class Infobereich : public QWidget
{
    Q_OBJECT

public:
    Infobereich(InfoPanel& modell, RelationActions& relationActions, QtViewer& viewer);

    void zeigen();
    // A page has led to a document of a table: the keyboard goes there.
    std::function<void()> zurTabelle;

private:
    QWidget* neuerKopf();
    QWidget* neueStichKommSeite();
    void baueSeiten(RelationActions& relationActions, QtViewer& viewer);
    void fuegeSeiteHinzu(InfoSeite seite, QWidget* inhalt);
    void zeigeKopf();

    InfoPanel& modell_;
    KurzLabel* kopf_;
    QLabel* LblNichtVorhanden_;
    QLabel* LblAchtungRev_;
    QStackedWidget* seiten_;
    std::map<InfoSeite, QWidget*> seite_;
    QWidget* leer_;
    Allgemeinansicht* allgemein_;
    Dateiansicht* datei_;
    Tiffseite* tiff_;
    std::vector<Listenseite*> listen_;
    std::vector<Verwendungsansicht*> verwendung_;
    LongText* TextKeywords_;
    LongText* TextComments_;
};

} // namespace quelvarn
