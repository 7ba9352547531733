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
        return cluster.zugang_.empty() ? nullptr : &cluster;
#endif
    }

    // Address of an empty database.
    std::string neueDatenbank()
    {
        if (!frei_.empty()) {
            const std::string frei = std::move(frei_.back());
            frei_.pop_back();
            frage(frei, "SET client_min_messages = warning; DROP SCHEMA public CASCADE; CREATE SCHEMA public");
            return frei;
        }
        const std::string name = "qv_test_" + std::to_string(nummer_) + "_" + std::to_string(++zaehler_);
        frage(adresse("postgres"), "CREATE DATABASE " + name);
        return adresse(name);
    }

    // Nobody is connected to it any more: it may be given out again, which takes a fraction of the time of a new one.
    void gibFrei(std::string adresse)
    {
        frei_.push_back(std::move(adresse));
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
    std::string frage(const std::string& adresse, const std::string& sql) const;

private:
    PostgresCluster()
    {
        if (const char* zugang = std::getenv("QUELVARN_TEST_POSTGRES")) {
            zugang_ = zugang;
            return;
        }
#ifdef __linux__
        server_ = PostgresServer::find();
        if (server_)
            zugang_ = server_->zugang();
#endif
    }

    std::string adresse(std::string_view datenbank) const
    {
        return "postgresql:///" + std::string(datenbank) + "?" + zugang_;
    }

#ifdef __linux__
    std::unique_ptr<PostgresServer> server_;
#endif
    std::string zugang_;
    unsigned nummer_ = std::random_device()(); // Other programs may use the same server.
    int zaehler_ = 0;
    std::vector<std::string> frei_;
};

// For a fixture that runs on an engine by its name: the address of an empty database, "" for SQLite or without a
// server.
inline std::string addressOn(std::string_view engine)
{
    PostgresCluster* cluster = engine == "PostgreSQL" ? PostgresCluster::find() : nullptr;
    return cluster ? cluster->neueDatenbank() : "";
}

inline std::string PostgresCluster::frage(const std::string& adresse, const std::string& sql) const
{
#ifdef QUELVARN_NO_POSTGRESQL
    throw std::runtime_error("built without PostgreSQL: " + adresse + sql);
#else
    const std::unique_ptr<PGconn, decltype(&PQfinish)> verbindung(PQconnectdb(adresse.c_str()), PQfinish);
    const std::unique_ptr<PGresult, decltype(&PQclear)> antwort(PQexec(verbindung.get(), sql.c_str()), PQclear);
    const ExecStatusType status = PQresultStatus(antwort.get());
    if (status != PGRES_TUPLES_OK && status != PGRES_COMMAND_OK)
        throw std::runtime_error(sql.substr(0, 200) + ": " + PQerrorMessage(verbindung.get()));
    std::string text;
    for (int zeile = 0; zeile < PQntuples(antwort.get()); ++zeile)
        for (int spalte = 0; spalte < PQnfields(antwort.get()); ++spalte) {
            text += PQgetvalue(antwort.get(), zeile, spalte);
            text += spalte + 1 < PQnfields(antwort.get()) ? '|' : '\n';
        }
    return text;
#endif
}

} // namespace quelvarn::test
