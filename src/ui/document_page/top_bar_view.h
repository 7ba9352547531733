#pragma once

#include <QObject>

class QToolBar;

namespace quelvarn {

class Favoritenpanel;
class ObereLeiste;

// The bar over the tables, with the list of favourites that one of its buttons brings up.
class ObereLeistenansicht : public QObject
{
    Q_OBJECT

public:
    ObereLeistenansicht(ObereLeiste& modell, QObject* eltern);

    void zeigen();
    // What the bar has brought up goes away.
    void schliesse();
    QToolBar* ToolbarSEDokTop() { return ToolbarSEDokTop_; }
    Favoritenpanel* FrmFavoriten() { return FrmFavoriten_; }

private:
    void klick(const QString& schluessel, bool gedrueckt);

    ObereLeiste& modell_;
    QToolBar* ToolbarSEDokTop_;
    Favoritenpanel* FrmFavoriten_;
};

} // namespace quelvarn
