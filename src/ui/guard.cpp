#include "ui/guard.h"

#include "session/error_report.h"

#include <cassert>

namespace quelvarn {

namespace {

SlotGuard* inForce = nullptr;

} // namespace

SlotGuard::SlotGuard(Boxes& boxes, std::function<void()> programEnd)
    : boxes_(boxes), programEnd_(std::move(programEnd)), previous_(inForce)
{
    inForce = this;
}

SlotGuard::~SlotGuard()
{
    inForce = previous_;
}

void SlotGuard::execute(const std::function<void()>& gesture) noexcept
{
    try {
        try {
            gesture();
        } catch (const RuntimeError& fault) {
            Fehlermeldung(boxes_, fault);
        } catch (const std::exception& fault) {
            Fehlermeldung(boxes_, RuntimeError(5, "Quelvarn", fault.what()));
        }
    } catch (const ProgramExit&) {
        programEnd_();
    }
}

SlotGuard& SlotGuard::current()
{
    assert(inForce != nullptr);
    return *inForce;
}

bool SlotGuard::existsIn()
{
    return inForce != nullptr;
}

} // namespace quelvarn
