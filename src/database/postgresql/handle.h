#pragma once

#include "database/value.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

struct pg_conn;
struct pg_result;

namespace quelvarn::postgresql {

class Leser;

struct LoescheErgebnis
{
    void operator()(pg_result* ergebnis) const;
};
using Ergebnis = std::unique_ptr<pg_result, LoescheErgebnis>;

// One connection to a server. It runs one statement at a time: a reader that is still under way takes its other
// rows into memory before the next statement starts. Used by one thread at a time.
class Handle : public std::enable_shared_from_this<Handle>
{
public:
    static std::shared_ptr<Handle> oeffne(std::string_view adresse);
    ~Handle();
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    // Statements without parameters, one or several.
    Ergebnis fuehreAus(const std::string& sql);
    Ergebnis fuehreAus(const std::string& sql, std::span<const Value> parameter);
    // Starts a statement whose rows are then fetched one by one.
    void starte(const std::string& sql, std::span<const Value> parameter, Leser& leser);
    // The next piece of what was started; null behind the last one.
    Ergebnis naechstes();
    // A reader that has all its rows, or needs no more.
    void meldeAb(const Leser& leser);

    pg_conn* roh() const { return verbindung_; }
    [[noreturn]] void melde(const pg_result* ergebnis) const;

private:
    Handle() = default;
    void machFrei();

    pg_conn* verbindung_ = nullptr;
    Leser* liest_ = nullptr;
};

} // namespace quelvarn::postgresql
