#include "register/relation_rows.h"

#include "base/text.h"
#include "base/windows_path.h"
#include "database/connection.h"
#include "database/document_types.h"
#include "database/sql/conditions.h"
#include "documents/document_record.h"
#include "register/document_facts.h"
#include "register/document_questions.h"
#include "register/relation_kinds.h"

#include <algorithm>
#include <utility>

namespace quelvarn {
namespace {

// A document without a path is used nowhere: null.
sql::ExpressionPointer condition(const LinkTable& table, const DokuRecord& record, std::string_view documentPath)
{
    if (!table.documentPath.empty())
        return documentPath.empty() ? nullptr : sql::equal(table.documentPath, documentPath);
    return sql::all(sql::equal(table.DokuBez, record.DokuBez), sql::equal(table.RevBez, record.RevBez));
}

bool isPart(int documentKind)
{
    return documentKind == 1 || documentKind == 4 || documentKind == 6;
}

const LinkTable& source(const RelationKind& kind, const DokuRecord& record)
{
    const bool second = kind.sourceChoice == SourceChoice::ByType && !isPart(record.DokuArt);
    return kind.tables[second ? 1 : 0];
}

Recordset open(Connection& connection, const LinkTable& table, sql::ExpressionPointer condition)
{
    Recordset rows;
    if (!condition)
        return rows;
    sql::Select select = sql::Query(table.table).distinct().where(std::move(condition));
    for (const std::string& column : split(table.columns, ',')) {
        select.columns.emplace_back(trim(column));
        select.orderBy.push_back({select.columns.back(), false});
    }
    rows.Open(std::move(select), connection);
    return rows;
}

// One list of the paths of several tables, with the names of the files.
Recordset united(Connection& connection, const RelationKind& kind, const DokuRecord& record,
                 std::string_view documentPath)
{
    Recordset all;
    all.appendField(kind.fields.Dateiname, FieldType::Text);
    all.appendField(kind.fields.filename, FieldType::Text);
    all.Open();
    for (const LinkTable& table : kind.tables) {
        Recordset part = open(connection, table, condition(table, record, documentPath));
        for (; !part.eof(); part.MoveNext()) {
            std::string filename = part.Text(table.columns);
            all.AddNew();
            all.setField(kind.fields.Dateiname, DateiName(filename));
            all.setField(kind.fields.filename, std::move(filename));
        }
    }
    if (!all.empty()) {
        all.Update();
        all.MoveFirst();
    }
    return all;
}

bool read(Connection& connection, const DocumentType& type, sql::ExpressionPointer condition, GeneralPage& details)
{
    Recordset row;
    row.Open(sql::Query(type.table).where(std::move(condition)), connection);
    if (row.empty())
        return false;
    details = generalPage(readDocumentRecord(row, type), {}, type, false, true);
    return true;
}

const DocumentType& typeOf(std::string_view key)
{
    return *std::ranges::find(DOCUMENT_TYPES, key, &DocumentType::key);
}

} // namespace

bool hasRelation(Connection& connection, const RelationKind& kind, const DokuRecord& record,
                 std::string_view documentPath)
{
    const LinkTable& table = source(kind, record);
    sql::ExpressionPointer wo = condition(table, record, documentPath);
    return wo && rowExists(connection, table.table, table.documentPath.empty() ? table.DokuBez : table.documentPath,
                           std::move(wo));
}

Recordset relationRows(Connection& connection, const RelationKind& kind, const DokuRecord& record,
                       std::string_view documentPath)
{
    if (kind.sourceChoice == SourceChoice::All)
        return united(connection, kind, record, documentPath);
    const LinkTable& table = source(kind, record);
    return open(connection, table, condition(table, record, documentPath));
}

RelationDocument documentAt(Connection& connection, const RelationKind& kind, const Recordset& row)
{
    RelationDocument document;
    if (!kind.components()) {
        document.type = &typeOf(kind.targetType);
        read(connection, *document.type,
             sql::all(sql::equal("DokuBez", row.Text(kind.fields.DokuBez)),
                      sql::equal("RevBez", row.Text(kind.fields.RevBez))),
             document.details);
        return document;
    }
    const std::string filename = row.Text(kind.fields.filename);
    document.type = findTypeOfFile(filename);
    const DocumentType& first = document.type ? *document.type : typeOf("Draft");
    if (read(connection, first, sql::equal("filename", filename), document.details))
        return document;
    for (const DocumentType& type : DOCUMENT_TYPES) {
        if (type.specialTable == 0 || !read(connection, type, sql::equal("filename", filename), document.details))
            continue;
        document.type = &type;
        document.SondertabelleNr = type.specialTable;
        break;
    }
    return document;
}

std::optional<DocumentName> findDocument(Connection& connection, const DocumentType& type, std::string_view filename)
{
    std::vector<DocumentName> names = documentsWithPath(connection, type, filename);
    return names.empty() ? std::nullopt : std::optional(std::move(names.front()));
}

std::vector<DocumentName> documentsWithPath(Connection& connection, const DocumentType& type, std::string_view filename)
{
    std::vector<DocumentName> names;
    const auto rows = connection.engine().read(
        sql::Query(type.table).columns({"DokuBez", "RevBez"}).where(sql::equal("filename", filename)), WithKey::No);
    while (rows->next())
        names.push_back({std::string(rows->text(0)), std::string(rows->text(1))});
    return names;
}

const DocumentType* findTypeOfFile(std::string_view filename)
{
    const int code = fileTypeCode(filename);
    const auto type = std::ranges::find(DOCUMENT_TYPES, code, &DocumentType::documentKind);
    return code == 0 || type == DOCUMENT_TYPES.end() ? nullptr : &*type;
}

bool isVisible(Connection& connection, const DocumentType& type, std::string_view filename,
               std::string_view WhereStatus)
{
    return WhereStatus.empty() || rowExists(connection, type.table, "filename",
                                            sql::all(sql::equal("filename", filename), sql::statusScope(WhereStatus)));
}

} // namespace quelvarn
