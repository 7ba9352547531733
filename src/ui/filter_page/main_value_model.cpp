#include "ui/filter_page/main_value_model.h"

#include "base/number_format.h"
#include "ui/text.h"

namespace quelvarn {

namespace {

constexpr std::array<const char*, 3> SPALTEN{"HW", "MinWert", "MaxWert"};

} // namespace

void Hauptwertmodell::zeige(const Grenzen& grenzen)
{
    if (grenzen == grenzen_)
        return;
    grenzen_ = grenzen;
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int Hauptwertmodell::rowCount(const QModelIndex& eltern) const
{
    return eltern.isValid() ? 0 : ANZAHL_HAUPTWERTE;
}

int Hauptwertmodell::columnCount(const QModelIndex& eltern) const
{
    return eltern.isValid() ? 0 : static_cast<int>(SPALTEN.size());
}

QVariant Hauptwertmodell::data(const QModelIndex& stelle, int rolle) const
{
    if (rolle == Qt::TextAlignmentRole && stelle.column() > 0)
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    if (rolle != Qt::DisplayRole || !checkIndex(stelle, CheckIndexOption::IndexIsValid))
        return {};
    if (stelle.column() == 0)
        return QStringLiteral("  ") + QChar(u'a' + stelle.row());
    const Hauptwertgrenzen& grenzen = grenzen_[static_cast<std::size_t>(stelle.row())];
    if (!grenzen.gesetzt())
        return {};
    return zuQt((stelle.column() == 1 ? grenzen.MinWert : grenzen.MaxWert).text());
}

QVariant Hauptwertmodell::headerData(int abschnitt, Qt::Orientation richtung, int rolle) const
{
    if (richtung != Qt::Horizontal || rolle != Qt::DisplayRole)
        return {};
    return QLatin1String(SPALTEN[static_cast<std::size_t>(abschnitt)]);
}

} // namespace quelvarn
