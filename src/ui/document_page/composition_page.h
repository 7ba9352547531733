#pragma once

#include "register/info_pages.h"
#include "ui/controls/grid_model.h"

#include <QWidget>

#include <array>
#include <string_view>
#include <vector>

namespace quelvarn {

// What differs between the six pages of composition and where-used.
struct Verwendungsart
{
    InfoSeite seite;
    std::string_view rahmen; // A frame of its own inside FrmInfoDoku, "" for none.
    std::string_view titel;
    std::string_view gitter;
    std::vector<Gitterspalte> spalten;
    std::string_view leiste;
    std::string_view tippAnschauen;
    std::string_view tippWechseln;
    std::string_view vorschau;
    std::string_view felder; // Name of the array of labels with the details of a row.
    int grafik;              // Index in ChViewGrafik.
};

const std::array<Verwendungsart, 6>& verwendungsarten();

// A page of composition or where-used: grid, tool bar, details of the row or its preview.
class Verwendungsansicht : public QWidget
{
    Q_OBJECT

public:
    explicit Verwendungsansicht(const Verwendungsart& art);

private:
    QWidget* neueLeiste(const Verwendungsart& art);
    QWidget* neueFelder(const Verwendungsart& art);
};

} // namespace quelvarn
