#include "sample/uses.h"

#include "sample/addresses.h"
#include "sample/document_row.h"
#include "sample/random.h"
#include "sample/sample_register.h"
#include "sample/vocabulary.h"

#include <fmt/format.h>

namespace quelvarn::sample {

namespace {

struct Entry
{
    int code;
    std::string_view user;     // Whoever uses the file, or sends the message.
    std::string_view computer; // His computer, or the receiver of the message.
    Tab tab;
    std::string_view comment; // "" is stored as Null.
};

// Open files, and messages between users at every stage.
constexpr std::array<Entry, 24> ENTRIES{{
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

constexpr std::uint64_t QUESTION = 80;
constexpr int FIRST_PACKET = 5;

// An item of this kind, somewhere in the register; NONE when there is none.
std::uint32_t findPart(const Plan& plan, Tab tab, Random& random)
{
    const auto count = static_cast<std::uint32_t>(plan.parts().size());
    auto part = random.below(count);
    for (std::uint32_t attempt = 0; attempt < count; ++attempt, part = (part + 1) % count)
        if (plan.part(part).tab == tab && plan.part(part).section <= Section::Frame)
            return part;
    return NONE;
}

} // namespace

void writeCheckInOut(const Documents& documents, RowSink& sink)
{
    Random random{documents.plan().start(), QUESTION};
    for (const Entry& entry : ENTRIES) {
        const auto part = findPart(documents.plan(), entry.tab, random);
        if (part == NONE)
            continue;
        const int revision = documents.plan().part(part).revisions - 1;
        const bool packet = entry.code >= FIRST_PACKET;
        const auto time =
            keyDate().plusDays(packet ? -random.between(0, 9) : 0).plusSeconds(-random.between(600, 32000));
        sink.row(std::vector<Value>{std::int64_t{entry.code}, std::string(entry.user), std::string(entry.computer),
                                    documents.fileName(part, revision), documents.filename(part, revision),
                                    documents.documentName(part), documents.revisionName(part, revision), time,
                                    entry.comment.empty() ? Value{} : Value{std::string(entry.comment)}});
    }
}

} // namespace quelvarn::sample
