#pragma once

#include "base/runtime_error.h"

#include <QAbstractTableModel>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class QTimer;

namespace quelvarn {

class Recordset;

struct Gitterspalte
{
    std::string_view titel;
    std::string_view feld;
};

// The rows of a recordset for a grid. Nothing is copied: a cell is read when it is drawn.
class Gittermodell : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit Gittermodell(std::vector<Gitterspalte> spalten);

    // nullptr for no rows. True when the grid was bound anew: other rows, or the same ones in another version.
    bool zeige(const Recordset* zeilen, unsigned fassung);

    int rowCount(const QModelIndex& eltern = {}) const override;
    int columnCount(const QModelIndex& eltern = {}) const override;
    QVariant data(const QModelIndex& stelle, int rolle) const override;
    QVariant headerData(int abschnitt, Qt::Orientation richtung, int rolle) const override;

private:
    QString zelle(const QModelIndex& stelle) const;
    void melde(const Laufzeitfehler& fehler) const;
    void tryAgain();

    std::vector<Gitterspalte> spalten_;
    const Recordset* zeilen_ = nullptr;
    unsigned fassung_ = 0;
    int anzahl_ = 0;
    mutable std::optional<Laufzeitfehler> fehler_; // While drawing: cells are empty until the next operation.
    mutable std::string told_;                     // What it said; not again before cells could be read.
    QTimer* melder_;
};

} // namespace quelvarn
