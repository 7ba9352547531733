#pragma once

#include "database/engine_transaction.h"
#include "database/postgresql/engine.h"
#include "database/postgresql/handle.h"

namespace quelvarn::postgresql {

// Sends rows as one COPY, in a transaction of its own. The connection can do nothing else until it has ended.
class Massenschreiber final : public Engine::Massenschreiber
{
public:
    Massenschreiber(PostgresEngine& engine, std::shared_ptr<Handle> handle, const std::string& tabelle,
                    std::vector<Spalte> spalten);
    ~Massenschreiber() override; // Gives the COPY up unless beende() was called.

    void zeile(std::span<const Value> werte) override;
    void beende() override;

private:
    void sende();

    PostgresEngine& engine_;
    std::shared_ptr<Handle> handle_;
    std::string tabelle_;
    std::vector<Spalte> spalten_;
    std::string puffer_;
    bool kopiert_ = true;
    Enginetransaktion transaktion_;
};

} // namespace quelvarn::postgresql
