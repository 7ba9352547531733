#pragma once

#include "database/engine_transaction.h"

namespace quelvarn::odbc {

// Inserts row after row, in a transaction of its own.
class Massenschreiber final : public Engine::Massenschreiber
{
public:
    Massenschreiber(Engine& engine, std::string tabelle, std::vector<Spalte> spalten);

    void zeile(std::span<const Value> werte) override;
    void beende() override;

private:
    Engine& engine_;
    sql::Anweisung einfuegen_;
    Enginetransaktion transaktion_;
};

} // namespace quelvarn::odbc
