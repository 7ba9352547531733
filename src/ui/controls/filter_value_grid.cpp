#include "ui/controls/filter_value_grid.h"

#include "ui/controls/grid.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QResizeEvent>

#include <utility>

namespace quelvarn {

namespace {

enum Wertspalte : int { Benennung = 0, Wert = 1, Anzahl = 2 };
constexpr int ANTEIL_BENENNUNG = 40; // Percent of the width.

} // namespace

void Wertmodell::zeige(const std::vector<FilterRow>& werte)
{
    if (werte == werte_)
        return;
    if (werte.size() == werte_.size()) { // The editor of a cell stays: the view closes it when it has written.
        werte_ = werte;
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, Anzahl - 1));
        return;
    }
    beginResetModel();
    werte_ = werte;
    endResetModel();
}

void Wertmodell::setzeKopf(std::string_view text)
{
    if (text == kopf_)
        return;
    kopf_ = text;
    Q_EMIT headerDataChanged(Qt::Horizontal, Wert, Wert);
}

int Wertmodell::rowCount(const QModelIndex& eltern) const
{
    return eltern.isValid() ? 0 : static_cast<int>(werte_.size());
}

int Wertmodell::columnCount(const QModelIndex& eltern) const
{
    return eltern.isValid() ? 0 : Anzahl;
}

QVariant Wertmodell::data(const QModelIndex& stelle, int rolle) const
{
    if ((rolle != Qt::DisplayRole && rolle != Qt::EditRole) || !checkIndex(stelle, CheckIndexOption::IndexIsValid))
        return {};
    const FilterRow& zeile = werte_[static_cast<std::size_t>(stelle.row())];
    return zuQt(stelle.column() == Benennung ? zeile.Benennung : zeile.Wert);
}

QVariant Wertmodell::headerData(int abschnitt, Qt::Orientation richtung, int rolle) const
{
    if (richtung == Qt::Vertical)
        return rolle == Qt::DisplayRole ? QVariant(abschnitt + 1) : QVariant();
    if (abschnitt < 0 || abschnitt >= Anzahl)
        return {};
    if (rolle == Qt::DisplayRole)
        return abschnitt == Benennung ? QStringLiteral("Benennung") : zuQt(kopf_);
    if (rolle == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags Wertmodell::flags(const QModelIndex& stelle) const
{
    const Qt::ItemFlags merkmale = QAbstractTableModel::flags(stelle);
    return bearbeitet && stelle.column() == Wert ? merkmale | Qt::ItemIsEditable : merkmale;
}

// The editor is closed by the time it is told: that may raise a box.
Wertmodell::Wertmodell(QObject* parent) : QAbstractTableModel(parent)
{
    connect(this, &Wertmodell::entered, this, &Wertmodell::tellEntered, Qt::QueuedConnection);
}

bool Wertmodell::setData(const QModelIndex& stelle, const QVariant& wert, int rolle)
{
    if (rolle != Qt::EditRole || !bearbeitet || wert == data(stelle, rolle))
        return false;
    entered_ = Entered{static_cast<std::size_t>(stelle.row()), ausQt(wert.toString())};
    werte_[entered_->row].Wert = entered_->value;
    Q_EMIT dataChanged(stelle, stelle);
    Q_EMIT entered();
    return true;
}

void Wertmodell::tellEntered()
{
    if (const auto entered = std::exchange(entered_, std::nullopt))
        Waechter::aktuell().fuehreAus([&] { bearbeitet(entered->row, entered->value); });
}

Werttabelle::Werttabelle(const char* name) : modell_(new Wertmodell(this))
{
    setObjectName(QLatin1String(name));
    setAccessibleName(QStringLiteral("Filterwerte"));
    setModel(modell_);
    stelleGitterEin(*this);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
}

void Werttabelle::takeInput()
{
    if (QWidget* editor = indexWidget(currentIndex())) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
    modell_->tellEntered();
}

void Werttabelle::resizeEvent(QResizeEvent* ereignis)
{
    QTableView::resizeEvent(ereignis);
    if (ereignis->size().width() != ereignis->oldSize().width())
        setColumnWidth(Benennung, viewport()->width() * ANTEIL_BENENNUNG / 100);
}

} // namespace quelvarn
