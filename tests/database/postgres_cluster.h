#pragma once

#include <cstdlib>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#ifndef QUELVARN_NO_POSTGRESQL
#include <libpq-fe.h>
#endif
#ifdef __linux__
#include "database/linux/postgres_server.h"
#endif

namespace quelvarn::test {

// The PostgreSQL server of a test program: the one that QUELVARN_TEST_POSTGRES tells (scripts/with_postgres.sh starts
// it), or else one of the program's own, started when first asked for.
class PostgresCluster
{
public:
    // Null where there is none.
    static PostgresCluster* find()
    {
#ifdef QUELVARN_NO_POSTGRESQL
        return nullptr;
#else
        static PostgresCluster cluster;
        return cluster.access_.empty() ? nullptr : &cluster;
#endif
    }

    // Address of an empty database.
    std::string newDatabase()
    {
        if (!free_.empty()) {
            const std::string free = std::move(free_.back());
            free_.pop_back();
            ask(free, "SET client_min_messages = warning; DROP SCHEMA public CASCADE; CREATE SCHEMA public");
            return free;
        }
        const std::string name = "qv_test_" + std::to_string(number_) + "_" + std::to_string(++counter_);
        ask(address("postgres"), "CREATE DATABASE " + name);
        return address(name);
    }

    // Nobody is connected to it any more: it may be given out again, which takes a fraction of the time of a new one.
    void release(std::string address)
    {
        free_.push_back(std::move(address));
    }

#ifdef __linux__
    // Null when the server is not this program's own: others may need it.
    PostgresServer* server()
    {
        return server_.get();
    }
    // Of the own server. Whoever stops it starts it again.
    void stop()
    {
        server_->stop();
    }
    void start()
    {
        server_->start();
    }
    void kill()
    {
        server_->kill();
    }
#endif

    // What the server answers, read without the engine: a line a row, columns divided by "|".
    std::string ask(const std::string& address, const std::string& sql) const;

private:
    PostgresCluster()
    {
        if (const char* access = std::getenv("QUELVARN_TEST_POSTGRES")) {
            access_ = access;
            return;
        }
#ifdef __linux__
        server_ = PostgresServer::find();
        if (server_)
            access_ = server_->access();
#endif
    }

    std::string address(std::string_view database) const
    {
        return "postgresql:///" + std::string(database) + "?" + access_;
    }

#ifdef __linux__
    std::unique_ptr<PostgresServer> server_;
#endif
    std::string access_;
    unsigned number_ = std::random_device()(); // Other programs may use the same server.
    int counter_ = 0;
    std::vector<std::string> free_;
};

// For a fixture that runs on an engine by its name: the address of an empty database, "" for SQLite or without a
// server.
inline std::string addressOn(std::string_view engine)
{
    PostgresCluster* cluster = engine == "PostgreSQL" ? PostgresCluster::find() : nullptr;
    return cluster ? cluster->newDatabase() : "";
}

inline std::string PostgresCluster::ask(const std::string& address, const std::string& sql) const
{
#ifdef QUELVARN_NO_POSTGRESQL
    throw std::runtime_error("built without PostgreSQL: " + address + sql);
#else
    const std::unique_ptr<PGconn, decltype(&PQfinish)> connection(PQconnectdb(address.c_str()), PQfinish);
    const std::unique_ptr<PGresult, decltype(&PQclear)> answer(PQexec(connection.get(), sql.c_str()), PQclear);
    const ExecStatusType status = PQresultStatus(answer.get());
    if (status != PGRES_TUPLES_OK && status != PGRES_COMMAND_OK)
        throw std::runtime_error(sql.substr(0, 200) + ": " + PQerrorMessage(connection.get()));
    std::string text;
    for (int row = 0; row < PQntuples(answer.get()); ++row)
        for (int column = 0; column < PQnfields(answer.get()); ++column) {
            text += PQgetvalue(answer.get(), row, column);
            text += column + 1 < PQnfields(answer.get()) ? '|' : '\n';
        }
    return text;
#endif
}

} // namespace quelvarn::test
