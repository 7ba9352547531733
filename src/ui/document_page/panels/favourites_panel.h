#pragma once

#include <QFrame>

class QLabel;
class QToolBar;

namespace quelvarn {

class Favoriten;
class Gitter;

// The list of favourites over the tables (FrmFavoriten).
class Favoritenpanel : public QFrame
{
    Q_OBJECT

public:
    explicit Favoritenpanel(Favoriten& modell);

    void zeigen();
    // Where the keyboard moves the rows.
    void nimmFokus();

private:
    void baueGitter();
    void baueLeisten();
    void beiKnopf(QToolBar& leiste, const char* schluessel, void (Favoriten::*tue)());
    void oeffneVerwaltung();

    Favoriten& modell_;
    Gitter* DGFavoriten_;
    QLabel* leer_;
    QToolBar* TBarFavVerlassen_;
    QToolBar* TBarFavVerwalten_;
};

} // namespace quelvarn
