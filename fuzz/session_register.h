// What the programs that play a user's day share: a register with rows of others, the world outside, and what must
// hold.
#pragma once

#include "base/collation.h"
#include "base/runtime_error.h"
#include "base/utf8.h"
#include "database/new_database.h"
#include "database/open_engine.h"
#include "database/sql/conditions.h"
#include "documents/document_record.h"
#include "fakes/fake_files.h"
#include "fakes/fake_world.h"
#include "fakes/temp_folder.h"
#include "filter/filter_context.h"
#include "filter/run_filter.h"
#include "filter/saved_filters.h"
#include "filter/steps.h"
#include "filter/template_lookup.h"
#include "filter/user_defined_run.h"
#include "platform/boxes.h"
#include "register/detail_lists.h"
#include "register/document_questions.h"
#include "register/favourite_rows.h"
#include "register/quick_search.h"
#include "register/relation_rows.h"
#include "register/user_defined_rows.h"
#include "session/database_start.h"
#include "session/ini_reader/start_run.h"
#include "session/settings_writer.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace quelvarn::fuzz {

inline constexpr std::string_view ANNA = "anna";
inline constexpr std::string_view BOB = "b' OR Feld1 Like '%";

inline void require(bool condition)
{
    if (!condition)
        std::abort();
}

class ShownBoxes final : public Boxes
{
public:
    Answer show(const Box& box) override
    {
        shown.push_back(box.title);
        return Answer::Ok;
    }
    std::vector<std::string> shown;
};

// The outside world of one person; it is the same for everybody.
struct World
{
    ShownBoxes boxes;
    FakeClock clock;
    FakeEnvironment environment;
    FakeFiles files{clock};
    FakeDrives drives;
    FakePrinters printers;
    FakePrograms programs;
    FakeClipboard clipboard;
    FakeDefaultApplication application;
    FakeProgress progress;
    Ports ports{boxes, clock, environment, files, drives, printers, programs, clipboard, application, progress};
};

// What the lines of an input say.
struct Input
{
    std::string search, name, value, DokuBez;
};

class Register
{
public:
    Register()
    {
        createRegister(*engine_);
        insertInstallation();
        insertDocuments();
        for (const std::string_view user : {ANNA, BOB}) {
            World world;
            SessionState session = sessionOf(user, world);
            session.pages.Starttabelle = "Zeichnungen";
            session.pages.ActiveQuelvarn = true;
            writeStartPage(session);
            save(session, {.search = "geheim", .name = "geheim", .value = "geheim", .DokuBez = "Geheim"});
            connection_.execute("UPDATE Ini SET Feld4 = '1' WHERE Feld2 = 'Berechtigung'");
        }
        rememberRows();
    }

    SessionState sessionOf(std::string_view user, World& world)
    {
        SessionState session;
        session.user.Anwender = user;
        session.folders.OrdnerSEDokumente = "C:\\SE";
        session.database.connection = Connection(engine_);
        std::string_view label;
        StartRun run{
            .session = session, .ports = world.ports, .section = label, .ini = IniRows(session.database.connection)};
        require(readRegister(run));
        return session;
    }

    static void save(SessionState& session, const Input& input)
    {
        session.pages.SearchTexts = {input.search};
        writeDocumentPage(session, 0);
        Recordset& filters = session.pages.GespeicherteFilter[0];
        filters.AddNew();
        filters.setField("Filtername", input.name);
        filters.setField("Filterstring", input.value);
        filters.Update();
        SaveFilterRows(session, 0);
        writeFavourite(session.database.connection, session.user, DOCUMENT_TYPES[0], {input.DokuBez, input.value});
    }

    // Whatever he looks for, he sees released and frozen documents alone.
    static void filter(SessionState& session, World& world, const Input& input)
    {
        Operations operations(world.ports);
        FilterState state;
        DocumentTables tables(session.database.connection, session.rights, operations);
        FilterContext context{session, operations, state, tables};
        AddFilterStep(context, input.value, "Projekt", 0);
        AddFilterStep(context, input.search, "Autor", 0);
        FilterEigenMerkBenutzDef(context);
        requireOwnStatuses(context.table().visible());
        clearFilter(context.state());
        context.state().FilterSchritte[0] = {"", "Farbe", CodeText, input.value};
        context.state().FilterAnzahl = 1;
        if (const auto result = ApplyBenutzDefFilter(context))
            requireOwnStatuses(*result);
        context.table().rows().Filter("");
        SuchenImRecordset(context.table().rows(), input.search, "DokuBez", TextAny, SearchStart::Above, world.boxes);
    }

    // Nothing belongs to a document that is not there.
    static void ask(SessionState& session, const Input& input)
    {
        for (std::int64_t status = 0; status < STATUS_COUNT; ++status) {
            const std::string name = "Geheim" + std::to_string(status);
            for (const std::string& known : {name, "W:\\" + name, name + ".tif"})
                if (equalText(known, input.value) || equalText(known, input.DokuBez))
                    return;
        }
        Connection& database = session.database.connection;
        DokuRecord record;
        record.DokuBez = input.DokuBez;
        record.RevBez = input.value;
        record.filename = input.value;
        require(InfoRevision(database, "PartTabelle", input.DokuBez, RevisionFilter::Erstellt).empty());
        require(userDefinedList(database, "PartTabelleBenutzDef", record).empty());
        require(!hasAdditionalDocuments(database, input.value) &&
                !findDocument(database, DOCUMENT_TYPES[0], input.value));
        require(revisionState(database, "PartTabelle", input.DokuBez).last.empty());
        require(EnthaltenInTIFFTabelle(database, input.value + ".dft").empty());
        require(addressCodes(database, {input.value, input.DokuBez}).empty());
        require(VorlageSuchen(database, std::vector{input.value, input.DokuBez}).empty());
        require(!isVisible(database, DOCUMENT_TYPES[0], input.value, session.rights.WhereStatus));
        require(filesOf(database, DOCUMENT_TYPES[0], std::vector<Favourite>{{input.DokuBez, "A"}}).front().empty());
    }

    // What was saved is found again; afterwards his favourite is gone.
    static void requireSaved(SessionState& session, const Input& input)
    {
        const std::string text(rightCharacters(input.search, 50));
        require(session.pages.SearchTexts == (text.empty() ? std::vector<std::string>{} : std::vector{text}));
        require(savedNames(session.pages, 0) == std::vector{input.name});
        require(SavedFilterString(session.pages, 0, input.name) == input.value);
        const auto favourites = readFavourites(session.database.connection, session.user, DOCUMENT_TYPES[0]);
        require(favourites.size() == 1 && same(favourites.front(), {input.DokuBez, input.value}));
        removeFavourites(session.database.connection, session.user, DOCUMENT_TYPES[0], favourites);
        require(readFavourites(session.database.connection, session.user, DOCUMENT_TYPES[0]).empty());
    }

    // How the settings stand now is how they must stand after each input.
    void rememberRows() { rows_ = rows(); }

    // Takes away what the input left; all others' rows are there, each cell as it was.
    void requireRestored(sql::ExpressionPointer left)
    {
        connection_.execute(sql::Delete{"Ini", std::move(left)});
        require(rows() == rows_);
    }

private:
    void insert(std::string_view table, std::vector<sql::Assignment> values) { engine_->insert(table, values); }

    void insertInstallation()
    {
        const std::array<std::array<const char*, 4>, 7> rows{{{"Bezeichnung", "Projekt", "Auftrag", ""},
                                                              {"Tabelle", "Sondertabelle1", "Normteile", ""},
                                                              {"Plot", "Pfadname", "", ""},
                                                              {"Plot", "Offline", "Talvik", ""},
                                                              {"OnOff", "CheckInOut", "1", ""},
                                                              {"OnOff", "Forward", "1", ""},
                                                              {"WriteDB", "Zeitinterval", "0", ""}}};
        for (const auto& [group, key, value, second] : rows)
            insert("Ini", {{"Feld1", std::string(OWNER_ALL)},
                           {"Feld2", group},
                           {"Feld3", key},
                           {"Feld4", value},
                           {"Feld5", second}});
    }

    void insertDocuments()
    {
        for (std::int64_t status = 0; status < STATUS_COUNT; ++status) {
            const std::string name = "Geheim" + std::to_string(status);
            for (const char* table : {"PartTabelle", "DraftTabelle"})
                insert(table, {{"DokuBez", name},
                               {"RevBez", "A"},
                               {"filename", "W:\\" + name},
                               {"Status", status},
                               {"Projekt", name},
                               {"Aenderung", "geheim"},
                               {"Kategorie", "QV_Vorlage"},
                               {"Hauptmerkmal_C", name}});
            insert("PartTabelleBenutzDef",
                   {{"DokuBez", name}, {"RevBez", "A"}, {"Name", "Farbe"}, {"Wert", name}, {"Status", status}});
            insert("VerbindungPartZusDoku", {{"Dokufilename", "W:\\" + name}, {"ZusDokufilename", "W:\\geheim"}});
            insert("TIFFTabelle", {{"Dateiname", name + ".tif"}, {"filename", "W:\\geheim.tif"}});
            insert("Adresstabelle", {{"Kennung", name}, {"Name", "Firma"}, {"Wert", name}});
        }
    }

    static void requireOwnStatuses(const Recordset& rows)
    {
        for (std::size_t i = 0; i < rows.RecordCount(); ++i) {
            const std::int64_t status = asInteger(rows.cell(i, "Status"));
            require(status == 3 || status == 4);
        }
    }

    // All cells of all rows.
    std::string rows()
    {
        sql::Select all;
        all.table = "Ini";
        std::string rows;
        rows.reserve(rows_.size());
        for (const auto row = engine_->read(all, WithKey::Yes); row->next();) {
            rows.append(std::to_string(row->key()));
            for (std::size_t i = 0; i < row->columns().size(); ++i)
                rows.append("|").append(row->findText(i).value_or("Null"));
            rows.append("\n");
        }
        return rows;
    }

    TempFolder folder_;
    std::shared_ptr<Engine> engine_ = openSqlite(folder_ / "werk.qv", true);
    Connection connection_{engine_};
    Transaction unwritten_{connection_}; // Nothing ever reaches the disk, which saves most of the time.
    std::string rows_;
};

// What a person types is valid text.
inline std::string nextLine(std::string_view& text)
{
    const std::size_t end = text.find('\n');
    std::string line(text.substr(0, end));
    text.remove_prefix(end == text.npos ? text.size() : end + 1);
    std::erase(line, '\0');
    return toUtf8(toUtf32(line));
}

inline Input readInput(std::string_view& text)
{
    Input input;
    for (std::string* line : {&input.search, &input.name, &input.value, &input.DokuBez})
        *line = nextLine(text);
    return input;
}

} // namespace quelvarn::fuzz

// A session allocates much: short stacks of where, and memory that is used again after some inputs, save a fifth of the
// time. ASAN_OPTIONS=malloc_context_size=30 tells more of a finding.
extern "C" const char* __asan_default_options()
{
    return "malloc_context_size=2:quarantine_size_mb=16";
}
