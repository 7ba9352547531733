#include "database/postgresql/server_wait.h"

namespace quelvarn::postgresql {
namespace {

constexpr std::chrono::milliseconds slice{50};

struct Asking
{
    explicit Asking(bool& flag) : flag_(flag) { flag_ = true; }
    ~Asking() { flag_ = false; }
    Asking(const Asking&) = delete;
    Asking& operator=(const Asking&) = delete;
    bool& flag_;
};

} // namespace

ServerWait::ServerWait(WaitRules& rules) : rules_(rules)
{
    restart();
}

ServerWait::~ServerWait()
{
    if (!asked_ || !rules_.patience)
        return;
    const Asking asking(rules_.asking);
    rules_.patience->waitEnded();
}

WaitEnd ServerWait::wait(int socket, SocketEvent event)
{
    while (!waitForSocket(socket, event, slice)) {
        const auto waited =
            std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begin_);
        if (rules_.patience) {
            if (!ask(waited))
                return WaitEnd::GivenUp;
        } else if (rules_.limit.count() > 0 && waited >= rules_.limit) {
            return WaitEnd::Silent;
        }
    }
    return WaitEnd::Ready;
}

bool ServerWait::ask(std::chrono::milliseconds waited)
{
    const Asking asking(rules_.asking);
    asked_ = true;
    return rules_.patience->keepWaiting(WaitReason::Server, waited);
}

} // namespace quelvarn::postgresql
