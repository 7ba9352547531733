#pragma once

#include "ui/controls/choice_view.h"
#include "ui/controls/grid_model.h"

#include <QTableView>

#include <vector>

namespace quelvarn {

// A grid of rows of one height, quick also with a million of them.
class Gitter : public Wahlansicht<QTableView>
{
    Q_OBJECT

public:
    // The widths are shares of the whole; the last column takes what is left.
    Gitter(std::string_view name, std::vector<Gitterspalte> spalten, std::vector<int> anteile);

    Gittermodell& zeilen() { return *modell_; }
    void zeige(const Recordset* zeilen, unsigned fassung);

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    void verteileBreiten();

    Gittermodell* modell_;
    std::vector<int> anteile_;
    bool verteilt_ = false; // Widths are being set by the program now.
    bool vonHand_ = false;  // A person has set a width: it stays.
};

// The look and the manners of every grid of the program.
void stelleGitterEin(QTableView& gitter);

} // namespace quelvarn
