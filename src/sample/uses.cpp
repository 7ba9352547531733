#include "sample/random.h"
#include "sample/sample_register.h"
#include "sample/vocabulary.h"

#include <fmt/format.h>

namespace quelvarn::sample {

namespace {

struct Eintrag
{
    int code;
    std::string_view anwender; // Whoever uses the file, or sends the message.
    std::string_view rechner;  // His computer, or the receiver of the message.
    Tab tab;
    std::string_view kommentar; // "" is stored as Null.
};

// Open files, and messages between users at every stage.
constexpr std::array<Eintrag, 24> EINTRAEGE{{
    {1, "Meier", "CAD-04", Tab::Assemb, ""},
    {1, "Meier", "CAD-04", Tab::Part, "Bohrbild in Arbeit"},
    {1, "Weber", "CAD-07", Tab::Part, "Rücksprache mit Einkauf läuft"},
    {1, "Weber", "CAD-07", Tab::Draft, ""},
    {1, "Köhler", "CAD-02", Tab::SheetM, ""},
    {1, "Böhm", "CAD-11", Tab::Weld, "Nahtvorbereitung"},
    {2, "Schröder", "CAD-05", Tab::Draft, ""},
    {2, "Schröder", "CAD-05", Tab::Assemb, ""},
    {2, "Straßer", "CAD-09", Tab::Part, ""},
    {5, "Harvel", "Meier", Tab::Draft, "In Vorbereitung"},
    {6, "Weber", "Meier", Tab::Part, "Bitte prüfen, Kunde drängt"},
    {6, "Köhler", "Schröder", Tab::Draft, ""},
    {7, "Böhm", "Meier", Tab::Assemb, "Passungen geprüft"},
    {11, "Meier", "Weber", Tab::Part, "Maße am Flansch unvollständig"},
    {12, "Meier", "Weber", Tab::Draft, "Toleranz fehlt"},
    {31, "Meier", "Weber", Tab::Part, "Freigegeben"},
    {32, "Meier", "Schröder", Tab::Draft, ""},
    {41, "Brückner", "Meier", Tab::Part, "Serienstand"},
    {51, "Brückner", "Weber", Tab::Draft, "Ersetzt durch Nachfolger"},
    {90, "Weber", "Schröder", Tab::SheetM, ""},
    {91, "Weber", "Schröder", Tab::Draft, "Siehe Maß 120 ±0,2"},
    {91, "Schröder", "Meier", Tab::SheetM, "Stückliste bitte ergänzen"},
    {92, "Meier", "Schröder", Tab::Draft, "Ist erledigt – danke!"},
    {91, "Meier", "Meier", Tab::Assemb, "Erinnerung an mich selbst"},
}};

constexpr std::uint64_t FRAGE = 80;
constexpr int ERSTE_NACHRICHT = 5;

// An item of this kind, somewhere in the register; KEINES when there is none.
std::uint32_t findTeil(const Plan& plan, Tab tab, Zufall& zufall)
{
    const auto anzahl = static_cast<std::uint32_t>(plan.teile().size());
    auto teil = zufall.unter(anzahl);
    for (std::uint32_t versuch = 0; versuch < anzahl; ++versuch, teil = (teil + 1) % anzahl)
        if (plan.teil(teil).tab == tab && plan.teil(teil).bereich <= Bereich::Rahmen)
            return teil;
    return KEINES;
}

} // namespace

void schreibeCheckInOut(const Dokumente& dokumente, Zeilensenke& senke)
{
    Zufall zufall{dokumente.plan().start(), FRAGE};
    for (const Eintrag& eintrag : EINTRAEGE) {
        const auto teil = findTeil(dokumente.plan(), eintrag.tab, zufall);
        if (teil == KEINES)
            continue;
        const int revision = dokumente.plan().teil(teil).revisionen - 1;
        const bool nachricht = eintrag.code >= ERSTE_NACHRICHT;
        const auto zeit =
            stichtag().plusTage(nachricht ? -zufall.zwischen(0, 9) : 0).plusSekunden(-zufall.zwischen(600, 32000));
        senke.zeile(std::vector<Value>{std::int64_t{eintrag.code}, std::string(eintrag.anwender),
                                       std::string(eintrag.rechner), dokumente.dateiname(teil, revision),
                                       dokumente.filename(teil, revision), dokumente.dokuBez(teil),
                                       dokumente.revBez(teil, revision), zeit,
                                       eintrag.kommentar.empty() ? Value{} : Value{std::string(eintrag.kommentar)}});
    }
}

} // namespace quelvarn::sample
