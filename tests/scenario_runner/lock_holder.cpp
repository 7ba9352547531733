#include "scenario_runner/lock_holder.h"

#include "database/connection.h"
#include "database/postgres_cluster.h"
#include "scenario_runner/script.h"

#include <QCoreApplication>
#include <QString>

#include <cstdio>
#include <fmt/format.h>
#include <fstream>
#include <sqlite3.h>
#include <stdexcept>

namespace quelvarn::scenario {

namespace {

constexpr int LONGEST_WAIT = 20'000; // milliseconds

void holdUntilInputEnds()
{
    std::puts("held");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
}

void holdSqlite(const std::string& mode, const std::string& file)
{
    sqlite3* database = nullptr;
    const auto run = [&](const char* sql) {
        if (sqlite3_exec(database, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(database));
    };
    if (sqlite3_open_v2(file.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database));
    sqlite3_busy_timeout(database, LONGEST_WAIT / 2);
    run(mode == "writing" ? "BEGIN IMMEDIATE" : "BEGIN EXCLUSIVE");
    holdUntilInputEnds();
    run("ROLLBACK");
    sqlite3_close(database);
}

#ifndef QUELVARN_NO_POSTGRESQL
void holdPostgres(const std::string& mode, const std::string& file)
{
    std::ifstream input(file);
    std::string address;
    std::getline(input, address);
    const std::unique_ptr<PGconn, decltype(&PQfinish)> server(PQconnectdb(address.c_str()), PQfinish);
    const auto run = [&](const std::string& sql) {
        std::unique_ptr<PGresult, decltype(&PQclear)> answer(PQexec(server.get(), sql.c_str()), PQclear);
        const auto status = PQresultStatus(answer.get());
        if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
            throw std::runtime_error(PQerrorMessage(server.get()));
        return answer;
    };
    const auto tables = run("SELECT quote_ident(tablename) FROM pg_tables WHERE schemaname = current_schema()");
    run("BEGIN");
    for (int row = 0; row < PQntuples(tables.get()); ++row)
        run(fmt::format("LOCK TABLE {} IN {} MODE", PQgetvalue(tables.get(), row, 0),
                        mode == "writing" ? "EXCLUSIVE" : "ACCESS EXCLUSIVE"));
    holdUntilInputEnds();
}
#else
void holdPostgres(const std::string&, const std::string&)
{
    throw std::runtime_error("built without PostgreSQL");
}
#endif

} // namespace

LockHolder::LockHolder(const std::filesystem::path& registerFile, const std::string& mode)
{
    process_.start(
        QCoreApplication::applicationFilePath(),
        {QStringLiteral("--hold-lock"), QString::fromStdString(mode), QString::fromStdString(registerFile.string())});
    if (!process_.waitForReadyRead(LONGEST_WAIT))
        throw Difference("the register cannot be locked: " + process_.readAllStandardError().toStdString());
}

LockHolder::~LockHolder()
{
    process_.closeWriteChannel();
    process_.waitForFinished(LONGEST_WAIT);
}

int holdLock(const std::string& mode, const std::string& registerFile)
{
    try {
        if (recognizeDatabase(registerFile) == DatabaseKind::PostgreSQL)
            holdPostgres(mode, registerFile);
        else
            holdSqlite(mode, registerFile);
        return 0;
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return 1;
    }
}

} // namespace quelvarn::scenario
