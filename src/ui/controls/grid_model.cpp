#include "ui/controls/grid_model.h"

#include "base/runtime_error.h"
#include "database/recordset.h"
#include "ui/adapters/patience_qt.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QTimer>

#include <algorithm>
#include <limits>
#include <utility>

namespace quelvarn {

Gittermodell::Gittermodell(std::vector<Gitterspalte> spalten) : spalten_(std::move(spalten)), melder_(new QTimer(this))
{
    melder_->setSingleShot(true);
    connect(melder_, &QTimer::timeout, this, bewacht([this] {
                if (fehler_)
                    throw Laufzeitfehler(*fehler_);
            }));
}

bool Gittermodell::zeige(const Recordset* zeilen, unsigned fassung)
{
    if (zeilen == zeilen_ && fassung == fassung_) {
        tryAgain();
        return false;
    }
    beginResetModel();
    zeilen_ = zeilen;
    fassung_ = fassung;
    const std::size_t anzahl = zeilen != nullptr ? zeilen->RecordCount() : 0;
    anzahl_ = static_cast<int>(std::min<std::size_t>(anzahl, std::numeric_limits<int>::max()));
    fehler_.reset();
    endResetModel();
    return true;
}

int Gittermodell::rowCount(const QModelIndex& eltern) const
{
    return eltern.isValid() ? 0 : anzahl_;
}

int Gittermodell::columnCount(const QModelIndex& eltern) const
{
    return eltern.isValid() ? 0 : static_cast<int>(spalten_.size());
}

QVariant Gittermodell::data(const QModelIndex& stelle, int rolle) const
{
    if (rolle != Qt::DisplayRole || !checkIndex(stelle, CheckIndexOption::IndexIsValid))
        return {};
    return zelle(stelle);
}

QVariant Gittermodell::headerData(int abschnitt, Qt::Orientation richtung, int rolle) const
{
    if (richtung != Qt::Horizontal || abschnitt < 0 || abschnitt >= columnCount())
        return {};
    if (rolle == Qt::DisplayRole || rolle == Qt::ToolTipRole)
        return zuQt(spalten_[static_cast<std::size_t>(abschnitt)].titel);
    if (rolle == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

QString Gittermodell::zelle(const QModelIndex& stelle) const
{
    if (fehler_ || QtPatience::isAsking()) // The connection is at work; the window is drawn anew afterwards.
        return {};
    try {
        const auto& spalte = spalten_[static_cast<std::size_t>(stelle.column())];
        QString text = zuQt(alsText(zeilen_->Zelle(static_cast<std::size_t>(stelle.row()), spalte.feld)));
        told_.clear();
        return text;
    } catch (const Laufzeitfehler& fehler) {
        melde(fehler);
        return {};
    }
}

// A box must not come up in the middle of drawing.
void Gittermodell::melde(const Laufzeitfehler& fehler) const
{
    fehler_ = fehler;
    if (std::exchange(told_, fehler.beschreibung()) != told_)
        melder_->start();
}

// What could not be read may be there again.
void Gittermodell::tryAgain()
{
    if (!fehler_ || melder_->isActive() || anzahl_ == 0)
        return;
    fehler_.reset();
    Q_EMIT dataChanged(index(0, 0), index(anzahl_ - 1, columnCount() - 1));
}

} // namespace quelvarn
