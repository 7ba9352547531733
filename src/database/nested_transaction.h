#pragma once

#include <cassert>
#include <fmt/format.h>
#include <string>

namespace quelvarn {

// Statements that open and end a transaction; one inside another is a savepoint.
class Transaktionsfolge
{
public:
    explicit Transaktionsfolge(std::string beginn) : beginn_(std::move(beginn)) {}

    bool offen() const { return tiefe_ > 0; }
    std::string beginn() const { return tiefe_ == 0 ? beginn_ : fmt::format("SAVEPOINT qv_{}", tiefe_); }
    std::string abschluss() const { return tiefe_ == 1 ? "COMMIT" : fmt::format("RELEASE qv_{}", tiefe_ - 1); }
    std::string ruecknahme() const
    {
        return tiefe_ == 1 ? "ROLLBACK" : fmt::format("ROLLBACK TO qv_{0}; RELEASE qv_{0}", tiefe_ - 1);
    }

    void begonnen() { ++tiefe_; }
    void beendet()
    {
        assert(tiefe_ > 0);
        --tiefe_;
    }

private:
    std::string beginn_;
    int tiefe_ = 0;
};

} // namespace quelvarn
