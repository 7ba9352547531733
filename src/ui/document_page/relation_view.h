#pragma once

#include "register/info_pages.h"

#include <QWidget>

#include <array>
#include <functional>
#include <string_view>
#include <vector>

class QAction;
class QCheckBox;
class QGridLayout;
class QLabel;
class QToolBar;

namespace quelvarn {

class Gitter;
class RelationActions;
class Statuspunkt;
class Statustext;
class Verwendungsseite;
struct Verwendungsart;

// The names of the controls of a page, and what stands on them.
struct Verwendungsnamen
{
    InfoSeite seite;
    std::string_view rahmen; // A frame of its own inside FrmInfoDoku, "" for none.
    std::string_view gitter;
    std::string_view leiste;
    std::string_view tippAnschauen;
    std::string_view tippWechseln;
    std::string_view vorschau;
    std::string_view felder; // The array of labels with the details of a row.
    int grafik;              // Index in ChViewGrafik.
};

extern const std::array<Verwendungsnamen, 6> VERWENDUNGSNAMEN;

// A page of composition or where-used: grid, tool bar, details of the row or its preview.
class Verwendungsansicht : public QWidget
{
    Q_OBJECT

public:
    // `vorschau` is the place of the page's viewer.
    Verwendungsansicht(Verwendungsseite& modell, RelationActions& actions, const Verwendungsnamen& namen,
                       QWidget& vorschau);

    void zeigen();
    // The page has led to another document.
    std::function<void()> verlassen;

private:
    struct Wert
    {
        QLabel* label;
        std::string AllgemeineSeite::*feld;
    };

    void baueGitter();
    QWidget* neueLeiste();
    QWidget* neueFelder();
    void baueStatus(QGridLayout& gitter, int zeile);
    QAction* fuegeKnopf(std::string_view schluessel, std::string_view beschriftung, std::string_view tipp,
                        const std::function<void()>& operation);
    void bediene(const std::function<void()>& operation);
    void zeigeDetails();
    bool istVorn() const;

    Verwendungsseite& modell_;
    RelationActions& actions_;
    const Verwendungsnamen& namen_;
    const Verwendungsart& art_;
    Gitter* gitter_;
    QToolBar* leiste_;
    QAction* anschauen_ = nullptr;
    std::string_view zeichen_; // On "Anschauen" now.
    QCheckBox* ChViewGrafik_;
    QLabel* leer_;
    std::vector<Wert> werte_;
    Statuspunkt* punkt_ = nullptr;
    Statustext* statusName_ = nullptr;
    QWidget* felder_ = nullptr;
    QWidget* vorschau_;
};

} // namespace quelvarn
