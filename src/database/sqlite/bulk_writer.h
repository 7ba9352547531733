#pragma once

#include "database/engine_transaction.h"
#include "database/sqlite/statement.h"

namespace quelvarn::sqlite {

// Inserts row after row with one prepared statement, in a transaction of its own.
class Massenschreiber final : public Engine::Massenschreiber
{
public:
    Massenschreiber(Engine& engine, Statement einfuegen, std::vector<Spalte> spalten);

    void zeile(std::span<const Value> werte) override;
    void beende() override;

private:
    Statement einfuegen_;
    std::vector<Spalte> spalten_;
    Enginetransaktion transaktion_;
};

} // namespace quelvarn::sqlite
