#pragma once

#include "database/engine.h"
#include "database/sqlite/statement.h"

namespace quelvarn::sqlite {

// Inserts row after row with one prepared statement, in a transaction of its own.
class Massenschreiber final : public Engine::Massenschreiber
{
public:
    Massenschreiber(Engine& engine, Statement einfuegen, std::vector<Spalte> spalten);
    ~Massenschreiber() override; // Takes the rows back unless beende() was called.

    void zeile(std::span<const Value> werte) override;
    void beende() override;

private:
    Engine& engine_;
    Statement einfuegen_;
    std::vector<Spalte> spalten_;
    bool offen_ = true;
};

} // namespace quelvarn::sqlite
