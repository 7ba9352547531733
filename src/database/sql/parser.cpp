#include "database/sql/parser.h"

#include "base/collation.h"
#include "base/runtime_error.h"
#include "database/sql/condition_parser.h"
#include "database/sql/literal.h"
#include "database/sql/reader.h"

#include <utility>

namespace quelvarn::sql {
namespace {

// Reads one statement.
class StatementParser
{
public:
    explicit StatementParser(std::string_view text) : reader_(text), literals_(reader_, DateOrder::MonthFirst) {}

    Statement read()
    {
        Statement statement = any();
        reader_.requireEnd();
        return statement;
    }

private:
    Statement any()
    {
        if (reader_.takeWord("SELECT"))
            return select();
        if (reader_.takeWord("INSERT"))
            return insert();
        if (reader_.takeWord("UPDATE"))
            return update();
        if (reader_.takeWord("DELETE"))
            return remove();
        reader_.syntaxFault();
    }

    Select select()
    {
        Select statement;
        statement.distinct = reader_.takeWord("DISTINCT");
        statement.count = takeCount();
        if (!statement.count && !reader_.takeCharacter("*"))
            statement.columns = columnList();
        reader_.requireWord("FROM");
        statement.table = reader_.requireName();
        takeLoneApostrophe();
        statement.where = where(Place::Condition);
        if (!statement.count)
            statement.orderBy = sort();
        checkTables(statement.table);
        return statement;
    }

    Insert insert()
    {
        Insert statement;
        reader_.requireWord("INTO");
        statement.table = reader_.requireName();
        reader_.requireCharacter("(");
        for (std::string& name : columnList())
            statement.values.push_back({std::move(name), {}});
        reader_.requireCharacter(")");
        reader_.requireWord("VALUES");
        reader_.requireCharacter("(");
        for (Assignment& assignment : statement.values) {
            if (&assignment != &statement.values.front())
                reader_.requireCharacter(",");
            assignment.value = literals_.read(Place::InsertedValue, 0);
        }
        reader_.requireCharacter(")");
        checkTables(statement.table);
        return statement;
    }

    Update update()
    {
        Update statement;
        statement.table = reader_.requireName();
        reader_.requireWord("SET");
        do {
            std::string name = column();
            reader_.requireCharacter("=");
            statement.values.push_back({std::move(name), literals_.read(Place::Assignment, 0)});
        } while (reader_.takeCharacter(","));
        statement.where = where(Place::FilterCondition);
        checkTables(statement.table);
        return statement;
    }

    Delete remove()
    {
        Delete statement;
        reader_.takeCharacter("*");
        reader_.requireWord("FROM");
        statement.table = reader_.requireName();
        statement.where = where(Place::FilterCondition);
        checkTables(statement.table);
        return statement;
    }

    // Count(*); a column may be called Count.
    bool takeCount()
    {
        Reader ahead = reader_;
        if (!ahead.takeWord("COUNT") || !ahead.takeCharacter("(") || !ahead.takeCharacter("*") ||
            !ahead.takeCharacter(")"))
            return false;
        reader_.goTo(ahead.position());
        return true;
    }

    // One list of addresses is asked for with an apostrophe too many behind the table.
    void takeLoneApostrophe()
    {
        Reader ahead = reader_;
        if (ahead.takeCharacter("'") && ahead.takeEnd())
            reader_.goTo(ahead.position());
    }

    ExpressionPointer where(Place position)
    {
        if (!reader_.takeWord("WHERE"))
            return nullptr;
        ConditionParser condition(reader_, literals_, position);
        ExpressionPointer read = condition.read();
        tables_.insert(tables_.end(), condition.tables().begin(), condition.tables().end());
        return read;
    }

    std::vector<Sort> sort()
    {
        std::vector<Sort> read;
        if (!reader_.takeWord("ORDER"))
            return read;
        reader_.requireWord("BY");
        do {
            std::string name = column();
            const bool descending = reader_.takeWord("DESC");
            if (!descending)
                reader_.takeWord("ASC");
            read.push_back({std::move(name), descending});
        } while (reader_.takeCharacter(","));
        return read;
    }

    std::vector<std::string> columnList()
    {
        std::vector<std::string> read;
        do {
            read.push_back(column());
        } while (reader_.takeCharacter(","));
        return read;
    }

    std::string column()
    {
        ColumnName name = reader_.requireColumn();
        if (!name.table.empty())
            tables_.push_back(std::move(name.table));
        return std::move(name.column);
    }

    // A column's table is known only when the table of the statement is.
    void checkTables(std::string_view table) const
    {
        for (const std::string& front : tables_) {
            if (!equalText(front, table))
                throw RuntimeError(FAULT_SYNTAX, "Datenbank",
                                   "Die Tabelle '" + front + "' kommt in der Anweisung nicht vor.");
        }
    }

    Reader reader_;
    LiteralReader literals_;
    std::vector<std::string> tables_; // Those that stood in front of columns.
};

} // namespace

Statement parseStatement(std::string_view text)
{
    return StatementParser(text).read();
}

ExpressionPointer parseCondition(std::string_view text, DateOrder sequence, Wildcards wildcards)
{
    Reader reader(text);
    if (reader.takeEnd())
        return nullptr;
    LiteralReader literals(reader, sequence);
    ConditionParser parser(reader, literals, Place::FilterCondition, wildcards);
    ExpressionPointer condition = parser.read();
    reader.requireEnd();
    if (!parser.tables().empty())
        throw RuntimeError(FAULT_SYNTAX, "Datenbank",
                           "Die Tabelle '" + parser.tables().front() + "' kommt in der Anweisung nicht vor.");
    return condition;
}

} // namespace quelvarn::sql
