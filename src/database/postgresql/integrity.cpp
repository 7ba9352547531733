#include "database/postgresql/integrity.h"

#include "base/runtime_error.h"
#include "database/postgresql/handle.h"

#include <fmt/format.h>
#include <libpq-fe.h>

namespace quelvarn::postgresql {
namespace {

// Tables whose name is found without their schema, and the parts of them that are trees.
constexpr const char* OWN_TABLES = "SELECT c.oid::regclass::text, c.oid FROM pg_catalog.pg_class c "
                                   "WHERE c.relkind = 'r' AND c.relpersistence = 'p' "
                                   "AND pg_catalog.pg_table_is_visible(c.oid) "
                                   "AND c.relnamespace <> 'pg_catalog'::regnamespace ORDER BY 1";
constexpr const char* OWN_INDEXES = "SELECT c.oid::regclass::text, c.oid FROM pg_catalog.pg_index i "
                                    "JOIN pg_catalog.pg_class c ON c.oid = i.indexrelid "
                                    "JOIN pg_catalog.pg_am a ON a.oid = c.relam AND a.amname = 'btree' "
                                    "JOIN pg_catalog.pg_class t ON t.oid = i.indrelid AND t.relkind = 'r' "
                                    "AND t.relpersistence = 'p' "
                                    "WHERE i.indisready AND i.indisvalid AND pg_catalog.pg_table_is_visible(t.oid) "
                                    "AND t.relnamespace <> 'pg_catalog'::regnamespace ORDER BY 1";

// The server's own check is an extension. Where an administrator has not made it, one who may makes it for the length
// of a transaction that is taken back.
class ServerCheck
{
public:
    explicit ServerCheck(Handle& handle) : handle_(handle)
    {
        handle_.execute("BEGIN");
        schema_ = findSchema();
        if (!schema_.empty() || !mayMake())
            return;
        try {
            handle_.execute("CREATE EXTENSION amcheck");
            schema_ = findSchema();
        } catch (const RuntimeError&) {
            schema_.clear(); // The server's own reasons; a register is checked without it as well.
        }
    }
    ~ServerCheck()
    {
        try {
            handle_.execute("ROLLBACK");
        } catch (const RuntimeError&) {
            // The connection is gone, and the transaction with it.
        }
    }
    ServerCheck(const ServerCheck&) = delete;
    ServerCheck& operator=(const ServerCheck&) = delete;

    bool available() const { return !schema_.empty() && isTrue(function("bt_index_check(regclass,boolean)")); }

    void indexes(DamageReport& report, std::size_t limit)
    {
        each(OWN_INDEXES, report, limit, [this](std::string_view index) {
            return fmt::format("SELECT {}.bt_index_check({}, true)", schema_, index);
        });
    }
    void tables(DamageReport& report, std::size_t limit)
    {
        if (isTrue(function("verify_heapam(regclass,boolean,boolean,text,bigint,bigint)")))
            each(OWN_TABLES, report, limit, [&](std::string_view table) {
                return fmt::format("SELECT msg FROM {}.verify_heapam({}) LIMIT {}", schema_, table, limit);
            });
    }

private:
    bool isTrue(const std::string& expression) const { return text("SELECT " + expression) == "t"; }
    std::string text(const std::string& sql) const
    {
        const Result result = handle_.execute(sql);
        return PQntuples(result.get()) > 0 ? PQgetvalue(result.get(), 0, 0) : "";
    }
    std::string findSchema() const
    {
        return text("SELECT quote_ident(n.nspname) FROM pg_catalog.pg_extension e "
                    "JOIN pg_catalog.pg_namespace n ON n.oid = e.extnamespace WHERE e.extname = 'amcheck'");
    }
    bool mayMake() const
    {
        return isTrue("EXISTS (SELECT FROM pg_catalog.pg_available_extensions WHERE name = 'amcheck') "
                      "AND current_setting('is_superuser') = 'on' AND NOT pg_catalog.pg_is_in_recovery()");
    }
    // Whether it is there and may be called.
    std::string function(std::string_view signature) const
    {
        return fmt::format("coalesce(has_function_privilege(to_regprocedure('{}.{}'), 'EXECUTE'), false)", schema_,
                           signature);
    }

    template <typename Check> void each(const char* list, DamageReport& report, std::size_t limit, const Check& check)
    {
        const Result names = handle_.execute(list);
        for (int row = 0; row < PQntuples(names.get()) && report.findings.size() < limit; ++row)
            one(PQgetvalue(names.get(), row, 0), check(PQgetvalue(names.get(), row, 1)), report);
    }

    void one(std::string_view name, const std::string& check, DamageReport& report)
    {
        handle_.execute("SAVEPOINT qv_check");
        try {
            const Result result = handle_.execute(check);
            for (int row = 0; row < PQntuples(result.get()); ++row)
                if (const std::string_view finding = PQgetvalue(result.get(), row, 0); !finding.empty())
                    report.findings.push_back(fmt::format("{}: {}", name, finding));
        } catch (const RuntimeError& fault) {
            handle_.execute("ROLLBACK TO qv_check"); // Throws when the connection is what is gone.
            report.findings.push_back(fmt::format("{}: {}", name, fault.what()));
        }
    }

    Handle& handle_;
    std::string schema_;
};

} // namespace

DamageReport findDamage(Handle& handle, std::size_t limit)
{
    ServerCheck check(handle);
    DamageReport report;
    report.checked = check.available();
    if (report.checked) {
        check.indexes(report, limit);
        check.tables(report, limit);
    }
    return report;
}

} // namespace quelvarn::postgresql
