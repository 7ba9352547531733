#pragma once

#include "database/nested_transaction.h"
#include "database/postgresql/link.h"

#include <functional>

namespace quelvarn {
class DatabaseFault;
}

namespace quelvarn::postgresql {

class Reader;

// What runs on one connection to a server. It runs one statement at a time: a reader that is still under way takes its
// other rows into memory before the next statement starts. A connection that has ended is made anew before the next
// statement; within a transaction that statement fails, as all others do until the transaction is taken back.
class Handle
{
public:
    static std::shared_ptr<Handle> open(std::string_view address, Patience* patience);
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    void setPatience(Patience* patience) { link_.setPatience(patience); }
    // Called behind each connection that was made anew: what is known of the database may no longer hold.
    std::function<void()> connectedDifferently;

    // One statement that only reads. When the connection ends before the answer it runs once more on a new one.
    Result read(const std::string& sql, std::span<const Value> parameter = {});
    // Statements without parameters, one or several. Never repeated.
    Result execute(const std::string& sql);
    Result execute(const std::string& sql, std::span<const Value> parameter);
    // Starts a statement that only reads, whose rows are then fetched one by one. The first piece of the answer; up
    // to then it is repeated like lies().
    Result start(const std::string& sql, std::span<const Value> parameter, Reader& reader);
    // The next piece of what was started; null behind the last one.
    Result next();
    // A reader that has all its rows, or needs no more.
    void detach(const Reader& reader) noexcept;
    // After a fault of a statement that only reads: it may run once more.
    bool mayRepeat(const DatabaseFault& fault) const;

    // Rows of a COPY, and its end; with a reason when it is to fail.
    void sendRows(std::string_view rows) { link_.sendCopy(rows); }
    void endRows(const char* reason) { link_.endCopy(reason); }

    void begin();
    void commit();
    // Throws nothing when the connection has ended: the changes went with it.
    void rollBack();
    bool inTransaction() const { return transaction_.open(); }

    std::string encoding() const { return link_.parameterStatus("server_encoding"); }

private:
    Handle(std::string_view address, Patience* patience) : link_(address, patience) {}
    // Ready for a statement.
    void prepare();
    void makeFree();
    std::string_view ifLost() const;
    template <class Run> Result repeatable(Run run);

    Link link_;
    TransactionSequence transaction_{"BEGIN"};
    Reader* reads_ = nullptr;
};

} // namespace quelvarn::postgresql
