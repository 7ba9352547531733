#pragma once

#include "database/nested_transaction.h"
#include "database/postgresql/link.h"

#include <functional>

namespace quelvarn {
class DatabaseFault;
}

namespace quelvarn::postgresql {

class Leser;

// What runs on one connection to a server. It runs one statement at a time: a reader that is still under way takes its
// other rows into memory before the next statement starts. A connection that has ended is made anew before the next
// statement; within a transaction that statement fails, as all others do until the transaction is taken back.
class Handle
{
public:
    static std::shared_ptr<Handle> oeffne(std::string_view adresse, Patience* patience);
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    void setPatience(Patience* patience) { link_.setPatience(patience); }
    // Called behind each connection that was made anew: what is known of the database may no longer hold.
    std::function<void()> verbundenAnders;

    // One statement that only reads. When the connection ends before the answer it runs once more on a new one.
    Ergebnis lies(const std::string& sql, std::span<const Value> parameter = {});
    // Statements without parameters, one or several. Never repeated.
    Ergebnis fuehreAus(const std::string& sql);
    Ergebnis fuehreAus(const std::string& sql, std::span<const Value> parameter);
    // Starts a statement that only reads, whose rows are then fetched one by one. The first piece of the answer; up
    // to then it is repeated like lies().
    Ergebnis starte(const std::string& sql, std::span<const Value> parameter, Leser& leser);
    // The next piece of what was started; null behind the last one.
    Ergebnis naechstes();
    // A reader that has all its rows, or needs no more.
    void meldeAb(const Leser& leser) noexcept;
    // After a fault of a statement that only reads: it may run once more.
    bool darfWiederholen(const DatabaseFault& fehler) const;

    // Rows of a COPY, and its end; with a reason when it is to fail.
    void sendeZeilen(std::string_view zeilen) { link_.sendCopy(zeilen); }
    void beendeZeilen(const char* grund) { link_.endCopy(grund); }

    void beginne();
    void schliesseAb();
    // Throws nothing when the connection has ended: the changes went with it.
    void nimmZurueck();
    bool inTransaktion() const { return transaktion_.offen(); }

    std::string kodierung() const { return link_.parameterStatus("server_encoding"); }

private:
    Handle(std::string_view adresse, Patience* patience) : link_(adresse, patience) {}
    // Ready for a statement.
    void bereite();
    void machFrei();
    std::string_view wennVerloren() const;
    template <class Lauf> Ergebnis wiederholbar(Lauf lauf);

    Link link_;
    Transaktionsfolge transaktion_{"BEGIN"};
    Leser* liest_ = nullptr;
};

} // namespace quelvarn::postgresql
