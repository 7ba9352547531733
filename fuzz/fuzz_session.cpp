// Any text, line by line, as what a person types who has been there for long: he filters, asks, saves, and finds it
// again. No row of anybody else is read or changed. Names are tried by fuzz_login, whose whole starts take three times
// as long.
#include "session/ini_reader/label_rows.h"
#include "session/ini_reader/saved_filter_rows.h"
#include "session_register.h"

using namespace quelvarn;
using namespace quelvarn::fuzz;

namespace {

// As a pattern it would be Bob as well.
constexpr std::string_view CLARA = "%' OR Feld1 Like '%";

class Work
{
public:
    Work()
    {
        office_.rememberRows(); // Hers as well: she does not change her settings.
    }

    void play(const Input& input)
    {
        readAgain();
        require(session_.pages.SearchTexts.empty() && savedNames(session_.pages, 0).empty());
        world_.boxes.shown.clear();
        Register::filter(session_, world_, input);
        Register::ask(session_, input);
        Register::save(session_, input);
        readAgain();
        Register::requireSaved(session_, input);
        std::vector<sql::ExpressionPointer> saved;
        saved.push_back(sql::equal("Feld2", "Suchen/Filtern"));
        saved.push_back(sql::equal("Feld2", "Filterwerte"));
        office_.requireRestored(sql::all(sql::equal("Feld1", CLARA), sql::any(std::move(saved))));
    }

private:
    void readAgain()
    {
        std::string_view label;
        StartRun run{
            .session = session_, .ports = world_.ports, .section = label, .ini = IniRows(session_.database.connection)};
        readSearchTexts(run);
        readSavedFilters(run);
    }

    Register office_;
    World world_;
    SessionState session_ = office_.sessionOf(CLARA, world_);
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static Work work;
    std::string_view text(reinterpret_cast<const char*>(bytes), size);
    work.play(readInput(text));
    return 0;
}
