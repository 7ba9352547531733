#include "register/document_questions.h"

#include "base/collation.h"
#include "base/windows_path.h"
#include "database/connection.h"
#include "database/sql/conditions.h"
#include "documents/document_record.h"
#include "platform/files.h"

#include <set>
#include <utility>
#include <vector>

namespace quelvarn {
namespace {

std::unique_ptr<RowReader> read(Connection& connection, const sql::Select& select, std::size_t limit = 0)
{
    return connection.engine().read(select, WithKey::No, limit);
}

// A document without a path is used nowhere.
bool existsForPath(Connection& connection, std::string_view table, std::string_view column,
                   std::string_view documentPath)
{
    return !documentPath.empty() && rowExists(connection, table, column, sql::equal(column, documentPath));
}

std::vector<std::string> readColumn(Connection& connection, const sql::Select& select)
{
    std::vector<std::string> values;
    const auto rows = read(connection, select);
    while (rows->next())
        values.emplace_back(rows->text(0));
    return values;
}

std::string existing(const Files& files, std::string documentPath)
{
    return files.fileExists(documentPath) ? std::move(documentPath) : std::string();
}

} // namespace

bool rowExists(Connection& connection, std::string_view table, std::string_view column,
               sql::ExpressionPointer condition)
{
    return read(connection, sql::Query(table).columns({column}).where(std::move(condition)), 1)->next();
}

RevisionState revisionState(Connection& connection, std::string_view table, std::string_view DokuBez)
{
    if (DokuBez.empty())
        return {};
    const std::vector<std::string> revisions = readColumn(
        connection,
        sql::Query(table).columns({"RevBez"}).distinct().where(sql::equal("DokuBez", DokuBez)).sortedBy("RevBez"));
    if (revisions.empty())
        return {};
    return {!equalText(revisions.front(), revisions.back()), revisions.back()};
}

bool newerRevision(const RevisionState& state, const DokuRecord& record)
{
    return !record.DokuBez.empty() && !record.RevBez.empty() && !state.last.empty() &&
           !equalText(state.last, record.RevBez);
}

std::string EnthaltenInTIFFTabelle(Connection& connection, std::string_view Dateiname)
{
    if (Dateiname.empty())
        return {};
    const std::string stem(Dateiname.substr(0, Dateiname.rfind('.')));
    for (const std::string& name : {stem + "tif", stem + ".tif"}) { // Some offices name them without a point.
        const auto row = read(
            connection,
            sql::Query("TIFFTabelle").columns({"filename"}).where(sql::equal("Dateiname", name)).sortedBy("filename"),
            1);
        if (row->next())
            return std::string(row->text(0));
    }
    return {};
}

std::string findTiff(Connection& connection, const Files& files, const DokuRecord& record)
{
    const std::string registered = EnthaltenInTIFFTabelle(connection, record.Dateiname);
    return registered.empty() ? existing(files, withExtension(record.filename, "tif")) : registered;
}

std::string findPdf(const Files& files, const DokuRecord& record)
{
    return existing(files, withExtension(record.filename, "pdf"));
}

std::set<std::string> addressCodes(Connection& connection, const std::vector<std::string>& names)
{
    std::vector<sql::ExpressionPointer> asked;
    for (const std::string& name : names)
        asked.push_back(sql::equal("Kennung", name));
    std::set<std::string> found;
    for (sql::ExpressionPointer& some : sql::chunks(std::move(asked))) {
        const sql::Select select = sql::Query("Adresstabelle").columns({"Kennung"}).distinct().where(std::move(some));
        for (const std::string& addressCode : readColumn(connection, select))
            found.insert(sortKey(addressCode));
    }
    return found;
}

UserDefinedRows userDefinedRows(Connection& connection, std::string_view tableUserDef, const DokuRecord& record)
{
    const std::vector<std::string> names = readColumn(
        connection, sql::Query(tableUserDef)
                        .columns({"Name"})
                        .distinct()
                        .where(sql::all(sql::equal("DokuBez", record.DokuBez), sql::equal("RevBez", record.RevBez))));
    const std::set<std::string> known = addressCodes(connection, names);
    UserDefinedRows result;
    for (const std::string& name : names)
        (known.contains(sortKey(name)) ? result.sent : result.properties) = true;
    return result;
}

bool hasAdditionalDocuments(Connection& connection, std::string_view filename)
{
    return existsForPath(connection, "VerbindungPartZusDoku", "Dokufilename", filename);
}

} // namespace quelvarn
