#pragma once

#include "base/runtime_error.h"
#include "database/engine.h"
#include "database/faults.h"

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::tools {

// Collects what a check finds and writes it line by line.
class Befund
{
public:
    explicit Befund(std::ostream& aus) : aus_(aus) {}
    void fehler(std::string_view text);  // The program cannot work well with it.
    void warnung(std::string_view text); // It can, but someone should look at it.
    void zeile(std::string_view text);   // Neither.

    std::uint64_t anzahlFehler() const { return fehler_; }
    std::uint64_t anzahlWarnungen() const { return warnungen_; }

private:
    std::ostream& aus_;
    std::uint64_t fehler_ = 0;
    std::uint64_t warnungen_ = 0;
};

// Whether no further part of a check can succeed.
bool endsCheck(const Laufzeitfehler& fault);
// A text of several lines as one.
std::string oneLine(std::string_view text);

// A part of a check. What a damaged database does not give is a finding; the other parts go on.
template <typename Work> void attempt(std::string_view what, Befund& befund, const Work& work)
{
    try {
        work();
    } catch (const Laufzeitfehler& fault) {
        if (endsCheck(fault))
            throw;
        befund.fehler(std::string(what) + ": nicht zu lesen: " + oneLine(fault.what()));
    }
}

// Counts the rows with one fault and remembers the first of them.
class Vorkommen
{
public:
    void merke(std::string_view beispiel)
    {
        if (anzahl_++ == 0)
            beispiel_ = beispiel;
    }
    std::uint64_t anzahl() const { return anzahl_; }
    // "Zeilen ohne Part: 3, etwa x.asm"
    std::string text(std::string_view was) const;

private:
    std::uint64_t anzahl_ = 0;
    std::string beispiel_;
};

// Reads columns of a whole table; nothing when the database lacks the table or one of the columns.
std::unique_ptr<Zeilenleser> findZeilen(Engine& engine, std::string_view tabelle, std::vector<std::string> spalten);

} // namespace quelvarn::tools
