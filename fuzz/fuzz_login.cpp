// Any text, line by line, as a login name and as what this person types: he starts, sets, saves and filters, and starts
// again. No row of anybody else is read or changed, and his own ones are found again.
#include "session_register.h"

using namespace quelvarn;
using namespace quelvarn::fuzz;

namespace {

void playFirstDay(Register& office, std::string_view user, const Input& input)
{
    World world;
    SessionState session = office.sessionOf(user, world);
    require(world.boxes.shown == std::vector<std::string>{""}); // He is greeted.
    require(session.rights.WhereStatus == " WHERE ( Status = 3 OR Status = 4)" && !session.pages.ActiveQuelvarn);
    require(session.pages.SearchTexts.empty() && session.pages.Starttabelle == "Bauteile");
    for (const DocumentType& type : DOCUMENT_TYPES)
        require(savedNames(session.pages, type.tab).empty() &&
                readFavourites(session.database.connection, session.user, type).empty());
    Register::filter(session, world, input);
    Register::ask(session, input);
    session.pages.ActiveQuelvarn = true;
    session.Tree.Node = false;
    writeStartPage(session);
    Register::save(session, input);
}

void playSecondDay(Register& office, std::string_view user, const Input& input)
{
    World world;
    SessionState session = office.sessionOf(user, world);
    require(world.boxes.shown.empty());
    require(session.pages.ActiveQuelvarn && !session.Tree.Node);
    Register::requireSaved(session, input);
}

// There is somebody of that name, or nobody can be called so.
bool taken(std::string_view user)
{
    for (const std::string_view owner : {std::string_view(), ANNA, BOB, OWNER_ALL})
        if (equalText(owner, user))
            return true;
    return false;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static Register office;
    std::string_view text(reinterpret_cast<const char*>(bytes), size);
    const std::string user = nextLine(text);
    const Input input = readInput(text);
    if (taken(user))
        return 0;
    playFirstDay(office, user, input);
    playSecondDay(office, user, input);
    office.requireRestored(sql::equal("Feld1", user));
    return 0;
}
