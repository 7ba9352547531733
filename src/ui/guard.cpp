#include "ui/guard.h"

#include "session/error_report.h"

#include <cassert>

namespace quelvarn {

namespace {

Waechter* inKraft = nullptr;

} // namespace

Waechter::Waechter(Meldungen& meldungen, std::function<void()> programmEnde)
    : meldungen_(meldungen), programmEnde_(std::move(programmEnde)), vorheriger_(inKraft)
{
    inKraft = this;
}

Waechter::~Waechter()
{
    inKraft = vorheriger_;
}

void Waechter::fuehreAus(const std::function<void()>& geste) noexcept
{
    try {
        try {
            geste();
        } catch (const Laufzeitfehler& fehler) {
            Fehlermeldung(meldungen_, fehler);
        } catch (const std::exception& fehler) {
            Fehlermeldung(meldungen_, Laufzeitfehler(5, "Quelvarn", fehler.what()));
        }
    } catch (const ProgrammEnde&) {
        programmEnde_();
    }
}

Waechter& Waechter::aktuell()
{
    assert(inKraft != nullptr);
    return *inKraft;
}

bool Waechter::gibtEs()
{
    return inKraft != nullptr;
}

} // namespace quelvarn
