#include "bench/program/qt_list.h"

#include <QRegularExpression>
#include <QSqlError>
#include <QSqlField>
#include <QSqlRecord>

#include <stdexcept>

namespace quelvarn::bench {

namespace {

const QString DRIVER = QStringLiteral("QSQLITE");
const QString CONNECTION = QStringLiteral("bench");

// The model itself orders by one column only.
class ListModel : public QSqlTableModel
{
public:
    using QSqlTableModel::QSqlTableModel;

protected:
    QString orderByClause() const override { return QStringLiteral("ORDER BY DokuBez, RevBez DESC"); }
};

} // namespace

QtList::QtList(const std::filesystem::path& copy) : database_(QSqlDatabase::addDatabase(DRIVER, CONNECTION))
{
    database_.setDatabaseName(QString::fromStdString(copy.string()));
    if (!database_.open())
        throw std::runtime_error("Qt cannot open " + copy.string());
    view_.resize(WINDOW);
    view_.setWordWrap(false);
    view_.setSelectionBehavior(QAbstractItemView::SelectRows);
    view_.show();
}

QtList::~QtList()
{
    close();
    database_ = {};
    QSqlDatabase::removeDatabase(CONNECTION);
}

bool QtList::existsIn()
{
    return QSqlDatabase::isDriverAvailable(DRIVER);
}

void QtList::open()
{
    table_ = std::make_unique<ListModel>(nullptr, database_);
    table_->setTable(QStringLiteral("PartTabelle"));
    if (!table_->select())
        throw std::runtime_error(table_->lastError().text().toStdString());
    while (table_->canFetchMore())
        table_->fetchMore();
    choose({}, 0);
}

void QtList::close()
{
    view_.setModel(nullptr);
    selection_.reset();
    table_.reset();
}

void QtList::filter(const std::string& column, const std::string& text)
{
    choose(QString::fromStdString(text), table_->fieldIndex(QString::fromStdString(column)));
}

void QtList::sort(const std::string& column)
{
    if (column.empty())
        return choose({}, 0);
    selection_->sort(table_->fieldIndex(QString::fromStdString(column)));
    painter_.wait();
}

void QtList::choose(const QString& text, int column)
{
    auto selection = std::make_unique<QSortFilterProxyModel>();
    selection->setFilterKeyColumn(column);
    selection->setFilterRegularExpression(
        QRegularExpression(QRegularExpression::escape(text), QRegularExpression::CaseInsensitiveOption));
    selection->setSourceModel(table_.get());
    view_.setModel(selection.get());
    selection_ = std::move(selection);
    painter_.wait();
}

void QtList::showRow(int row)
{
    const QModelIndex position = selection_->index(row, 0);
    const QSqlRecord fields = table_->record(selection_->mapToSource(position).row());
    qsizetype length = 0;
    for (int field = 0; field < fields.count(); ++field)
        length += fields.value(field).toString().size();
    if (length == 0)
        throw std::runtime_error("Qt reads empty rows");
    view_.setCurrentIndex(position);
    painter_.wait();
}

} // namespace quelvarn::bench
