#include "database/postgresql/handle.h"

#include "database/catalog.h"
#include "database/postgresql/reader.h"
#include "database/postgresql/server_faults.h"

#include <libpq-fe.h>

namespace quelvarn::postgresql {
namespace {

constexpr std::string_view TRANSACTION_LOST = "Die begonnenen Änderungen wurden nicht geschrieben.";
constexpr std::string_view EFFECT_UNCERTAIN = "Ob die Änderung noch geschrieben wurde, ist ungewiss.";

} // namespace

std::shared_ptr<Handle> Handle::open(std::string_view address, Patience* patience)
{
    std::shared_ptr<Handle> handle(new Handle(address, patience));
    handle->link_.connect();
    return handle;
}

void Handle::prepare()
{
    if (link_.waiting())
        throw RuntimeError(FAULT_GENERAL, "PostgreSQL", "Die Antwort der Datenbank steht noch aus.");
    makeFree();
    if (link_.alive())
        return;
    link_.drop();
    if (transaction_.open())
        link_.throwLost(TRANSACTION_LOST);
    link_.connect();
    if (connectedDifferently)
        connectedDifferently();
}

std::string_view Handle::ifLost() const
{
    return transaction_.open() ? TRANSACTION_LOST : EFFECT_UNCERTAIN;
}

bool Handle::mayRepeat(const DatabaseFault& fault) const
{
    return fault.kind() == FaultKind::ConnectionLost && !link_.connected() && !transaction_.open() &&
           !dynamic_cast<const ServerSilent*>(&fault);
}

template <class Run> Result Handle::repeatable(Run run)
{
    prepare();
    try {
        return run();
    } catch (const DatabaseFault& fault) {
        if (!mayRepeat(fault))
            throw;
    }
    prepare();
    return run();
}

Result Handle::read(const std::string& sql, std::span<const Value> parameter)
{
    return repeatable([&] {
        link_.send(sql, parameter, transaction_.open() ? TRANSACTION_LOST : "");
        return link_.answer();
    });
}

Result Handle::execute(const std::string& sql)
{
    prepare();
    link_.send(sql, ifLost());
    return link_.answer();
}

Result Handle::execute(const std::string& sql, std::span<const Value> parameter)
{
    prepare();
    link_.send(sql, parameter, ifLost());
    return link_.answer();
}

Result Handle::start(const std::string& sql, std::span<const Value> parameter, Reader& reader)
{
    return repeatable([&] {
        link_.send(sql, parameter, transaction_.open() ? TRANSACTION_LOST : "");
        link_.singleRows();
        reads_ = &reader;
        return next();
    });
}

Result Handle::next()
{
    try {
        return link_.next();
    } catch (...) {
        reads_ = nullptr;
        throw;
    }
}

void Handle::detach(const Reader& reader) noexcept
{
    if (reads_ != &reader)
        return;
    reads_ = nullptr;
    try {
        link_.drain();
    } catch (...) {
        link_.drop(); // Nothing that was asked for is missing. The next statement connects anew.
    }
}

void Handle::makeFree()
{
    if (reads_)
        reads_->holeRest();
}

void Handle::begin()
{
    repeatable([&] {
        link_.send(transaction_.begin(), transaction_.open() ? TRANSACTION_LOST : "");
        return link_.answer();
    });
    transaction_.begun();
}

void Handle::commit()
{
    prepare();
    const bool whole = transaction_.completion() == "COMMIT";
    link_.send(transaction_.completion(), whole ? EFFECT_UNCERTAIN : TRANSACTION_LOST);
    const Result result = link_.answer();
    // The server answers so, and with no fault, when a statement of the transaction had failed.
    if (std::string_view(PQcmdStatus(result.get())) == "ROLLBACK")
        throw RuntimeError(FAULT_GENERAL, "PostgreSQL",
                           "Die Änderungen wurden zurückgenommen, weil eine von ihnen gescheitert ist.");
    transaction_.ended();
}

void Handle::rollBack()
{
    const std::string rollback = transaction_.rollback();
    transaction_.ended();
    if (!link_.connected())
        return;
    try {
        makeFree();
        link_.send(rollback, "");
        link_.answer();
    } catch (const DatabaseFault&) {
        if (link_.connected())
            throw;
    }
}

} // namespace quelvarn::postgresql
