#include "bench/program/qt_list.h"

#include <QRegularExpression>
#include <QSqlError>
#include <QSqlField>
#include <QSqlRecord>

#include <stdexcept>

namespace quelvarn::bench {

namespace {

const QString TREIBER = QStringLiteral("QSQLITE");
const QString VERBINDUNG = QStringLiteral("bench");

// The model itself orders by one column only.
class Listenmodell : public QSqlTableModel
{
public:
    using QSqlTableModel::QSqlTableModel;

protected:
    QString orderByClause() const override { return QStringLiteral("ORDER BY DokuBez, RevBez DESC"); }
};

} // namespace

QtListe::QtListe(const std::filesystem::path& kopie) : datenbank_(QSqlDatabase::addDatabase(TREIBER, VERBINDUNG))
{
    datenbank_.setDatabaseName(QString::fromStdString(kopie.string()));
    if (!datenbank_.open())
        throw std::runtime_error("Qt cannot open " + kopie.string());
    ansicht_.resize(FENSTER);
    ansicht_.setWordWrap(false);
    ansicht_.setSelectionBehavior(QAbstractItemView::SelectRows);
    ansicht_.show();
}

QtListe::~QtListe()
{
    schliesse();
    datenbank_ = {};
    QSqlDatabase::removeDatabase(VERBINDUNG);
}

bool QtListe::gibtEs()
{
    return QSqlDatabase::isDriverAvailable(TREIBER);
}

void QtListe::oeffne()
{
    tabelle_ = std::make_unique<Listenmodell>(nullptr, datenbank_);
    tabelle_->setTable(QStringLiteral("PartTabelle"));
    if (!tabelle_->select())
        throw std::runtime_error(tabelle_->lastError().text().toStdString());
    while (tabelle_->canFetchMore())
        tabelle_->fetchMore();
    waehleAus({}, 0);
}

void QtListe::schliesse()
{
    ansicht_.setModel(nullptr);
    auswahl_.reset();
    tabelle_.reset();
}

void QtListe::filtere(const std::string& spalte, const std::string& text)
{
    waehleAus(QString::fromStdString(text), tabelle_->fieldIndex(QString::fromStdString(spalte)));
}

void QtListe::sortiere(const std::string& spalte)
{
    if (spalte.empty())
        return waehleAus({}, 0);
    auswahl_->sort(tabelle_->fieldIndex(QString::fromStdString(spalte)));
    maler_.warte();
}

void QtListe::waehleAus(const QString& text, int spalte)
{
    auto auswahl = std::make_unique<QSortFilterProxyModel>();
    auswahl->setFilterKeyColumn(spalte);
    auswahl->setFilterRegularExpression(
        QRegularExpression(QRegularExpression::escape(text), QRegularExpression::CaseInsensitiveOption));
    auswahl->setSourceModel(tabelle_.get());
    ansicht_.setModel(auswahl.get());
    auswahl_ = std::move(auswahl);
    maler_.warte();
}

void QtListe::zeigeZeile(int zeile)
{
    const QModelIndex stelle = auswahl_->index(zeile, 0);
    const QSqlRecord felder = tabelle_->record(auswahl_->mapToSource(stelle).row());
    qsizetype laenge = 0;
    for (int feld = 0; feld < felder.count(); ++feld)
        laenge += felder.value(feld).toString().size();
    if (laenge == 0)
        throw std::runtime_error("Qt reads empty rows");
    ansicht_.setCurrentIndex(stelle);
    maler_.warte();
}

} // namespace quelvarn::bench
