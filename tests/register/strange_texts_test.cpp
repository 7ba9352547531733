// Names and values that mean something in a statement, a pattern or a filter: nobody's rows but the own ones are read
// or changed, and what was stored under such a text is found by it.
#include "base/collation.h"
#include "database/engine_transaction.h"
#include "database/postgres_cluster.h"
#include "database/sql/conditions.h"
#include "documents/document_record.h"
#include "documents/row_memory.h"
#include "fakes/test_register.h"
#include "filter/saved_filters.h"
#include "filter/template_lookup.h"
#include "filter/user_defined_lists.h"
#include "register/detail_lists.h"
#include "register/document_questions.h"
#include "register/favourite_rows.h"
#include "register/quick_search.h"
#include "register/relation_kinds.h"
#include "register/relation_rows.h"
#include "register/user_defined_rows.h"
#include "session/database_start.h"
#include "session/ini_reader/ini_rows.h"
#include "session/settings_writer.h"

#include <gmock/gmock.h>

namespace quelvarn {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> strangeTexts()
{
    std::vector<std::string> texts{"Meier",
                                   "a' OR Feld1 Like '%",
                                   "a' OR DokuBez Like '%",
                                   "'",
                                   "''",
                                   "O'Neill",
                                   "O''Neill",
                                   "' --",
                                   "x' AND Feld2 = 'Treeview",
                                   "\"",
                                   "\"Anna\"",
                                   "[Bob]",
                                   "[",
                                   "]",
                                   "[a-z]",
                                   "100%",
                                   "%",
                                   "*",
                                   "_",
                                   "a_b",
                                   "?",
                                   "#01/02/04#",
                                   "\\",
                                   "a;DELETE FROM Ini",
                                   "(",
                                   ")",
                                   "Müller-Lüdenscheidt",
                                   " vorn",
                                   "Null",
                                   "1",
                                   "01.01.2004",
                                   "{fn now()}",
                                   "$1",
                                   "?1"};
    std::string longText;
    for (int i = 0; i < 300; ++i)
        longText += "é";
    texts.push_back(longText);
    texts.push_back(std::string(300, '\''));
    return texts;
}

class StrangeTexts : public TestRegister, public ::testing::WithParamInterface<std::string_view>
{
protected:
    StrangeTexts() : TestRegister(test::addressOn(GetParam())) {}
    void SetUp() override
    {
        if (GetParam() == "PostgreSQL" && !test::PostgresCluster::find())
            GTEST_SKIP() << "no PostgreSQL server is installed here";
    }

    std::vector<std::string> rowsOfOthers(std::string_view user)
    {
        std::vector<std::string> rows;
        const auto row = engine_->read(sql::Query("Ini"), WithKey::No);
        while (row->next()) {
            if (equalText(row->text(0), user))
                continue;
            std::string& text = rows.emplace_back();
            for (std::size_t i = 0; i < row->columns().size(); ++i)
                text.append(row->isNull(i) ? "Null" : row->text(i)).append("|");
        }
        std::ranges::sort(rows);
        return rows;
    }

    void start(SessionState& session, std::string_view user)
    {
        session.user.Anwender = user;
        session.database.DatenbankPfad = "W:\\Werk.mdb";
        world_.files.connect("W:\\Werk.mdb", folder_ / "Werk.mdb");
        world_.boxes.shown.clear();
        ASSERT_TRUE(Hauptprogramm(session, ports_)) << user;
    }

    static void save(SessionState& session, const std::string& text)
    {
        session.pages.ActiveQuelvarn = true;
        session.Tree.Node = false;
        session.pages.SearchTexts = {text};
        writeStartPage(session);
        writeDocumentPage(session, 3);
        Recordset& filters = session.pages.GespeicherteFilter[0];
        filters.AddNew();
        filters.setField("Filtername", text);
        filters.setField("Filterstring", text);
        filters.Update();
        SaveFilterRows(session, 0);
        writeFavourite(session.database.connection, session.user, DOCUMENT_TYPES[0], {text, text});
        writeFavourite(session.database.connection, session.user, DOCUMENT_TYPES[0], {text, text});
    }

    void insertDocuments()
    {
        EngineTransaction together(*engine_);
        for (const std::string& text : strangeTexts())
            insertDocument(text);
        together.commit();
    }
    // A document of that name, and everything that is linked to it.
    void insertDocument(const std::string& text)
    {
        const std::string path = pathOf(text);
        for (const char* table : {"PartTabelle", "AssembTabelle", "DraftTabelle", "WeldTabelle"})
            row(table, {{"DokuBez", text},
                        {"RevBez", text},
                        {"filename", path},
                        {"Status", 3},
                        {"Aenderung", text},
                        {"Kategorie", "QV_Vorlage"},
                        {"Hauptmerkmal_C", text}});
        row("PartTabelleBenutzDef", {{"DokuBez", text}, {"RevBez", text}, {"Name", text}, {"Wert", text}});
        row("VerbindungPartZusDoku", {{"Dokufilename", path}, {"ZusDokuDateiname", text}, {"ZusDokufilename", text}});
        row("TIFFTabelle", {{"Dateiname", text + ".tif"}, {"filename", text}});
        row("Adresstabelle", {{"Kennung", "an " + text}, {"Name", "Firma"}, {"Wert", text}});
        row("ZusBauPart", {{"AssembDokuBez", text}, {"AssembRevBez", text}, {"Part", path}});
        row("ZusBauSubAss", {{"AssembDokuBez", text}, {"AssembRevBez", text}, {"Subassembly", path}});
        row("VerbindungDraftPart", {{"DokuBezDraft", text}, {"RevBezDraft", text}, {"PfadAssembPart", path}});
        row("VerbindungWeldAssemb", {{"DokuBezWeld", text}, {"RevBezWeld", text}, {"PfadAssemb", path}});
    }
    static std::string pathOf(const std::string& text) { return "W:\\" + text + ".par"; }

    static DokuRecord recordOf(const std::string& text)
    {
        DokuRecord record;
        record.DokuArt = 1;
        record.DokuBez = record.RevBez = text;
        record.filename = pathOf(text);
        record.StructureFeature[2] = text;
        return record;
    }

    static std::vector<std::string> column(Recordset rows, std::string_view field)
    {
        std::vector<std::string> texts;
        for (; !rows.eof(); rows.MoveNext())
            texts.push_back(rows.Text(field));
        return texts;
    }
};

INSTANTIATE_TEST_SUITE_P(Engines, StrangeTexts, ::testing::Values("SQLite", "PostgreSQL"),
                         [](const auto& info) { return std::string(info.param); });

TEST_P(StrangeTexts, AsLoginNamesReachTheirOwnRowsAlone)
{
    world_.boxes.allowHints();
    for (const std::string& user : strangeTexts()) {
        SessionState first;
        std::vector<std::string> others = rowsOfOthers(user);
        start(first, user);
        EXPECT_EQ(world_.boxes.shown.front().title, "") << user << ": he is greeted";
        if (others.empty()) // The first of all writes the rows of the installation.
            others = rowsOfOthers(user);
        EXPECT_FALSE(first.pages.ActiveQuelvarn) << user;
        EXPECT_THAT(first.pages.SearchTexts, IsEmpty()) << user;
        EXPECT_THAT(savedNames(first.pages, 0), IsEmpty()) << user;
        EXPECT_THAT(readFavourites(first.database.connection, first.user, DOCUMENT_TYPES[0]), IsEmpty()) << user;
        save(first, user);
        EXPECT_EQ(rowsOfOthers(user), others) << user;

        SessionState second;
        start(second, user);
        for (const Box& box : world_.boxes.shown)
            EXPECT_NE(box.title, "") << user << ": he is no longer new";
        EXPECT_TRUE(second.pages.ActiveQuelvarn && !second.Tree.Node) << user;
        EXPECT_EQ(second.pages.Starttabelle, "Zeichnungen") << user;
        EXPECT_EQ(second.pages.SearchTexts.size(), 1U) << user;
        EXPECT_THAT(savedNames(second.pages, 0), ElementsAre(user));
        EXPECT_EQ(SavedFilterString(second.pages, 0, user), user);
        const auto favourites = readFavourites(second.database.connection, second.user, DOCUMENT_TYPES[0]);
        ASSERT_EQ(favourites.size(), 1U) << user;
        EXPECT_EQ(favourites.front().DokuBez, user);
        removeFavourites(second.database.connection, second.user, DOCUMENT_TYPES[0], favourites);
        EXPECT_EQ(rowsOfOthers(user), others) << user;
        writeFavourite(second.database.connection, second.user, DOCUMENT_TYPES[0], {user, user});
    }
}

TEST_P(StrangeTexts, AsNamesOfDocumentsFindWhatBelongsToThem)
{
    insertDocuments();
    const auto texts = strangeTexts();
    Connection& database = session_.database.connection;
    seesStatuses("3");
    Recordset parts;
    parts.Open("SELECT * FROM PartTabelle ORDER BY DokuBez, RevBez DESC", database);
    for (const std::string& text : texts) {
        SCOPED_TRACE(text);
        const DokuRecord record = recordOf(text);
        EXPECT_THAT(column(InfoRevision(database, "PartTabelle", text, RevisionFilter::Erstellt), "RevBez"),
                    ElementsAre(text));
        EXPECT_THAT(column(userDefinedList(database, "PartTabelleBenutzDef", record), "Wert"), ElementsAre(text));
        EXPECT_THAT(column(additionalDocumentList(database, world_.files, record.filename), "ZusDokuDateiname"),
                    ElementsAre(text));
        EXPECT_EQ(revisionState(database, "PartTabelle", text).last, text);
        EXPECT_FALSE(revisionState(database, "PartTabelle", text).several);
        EXPECT_EQ(EnthaltenInTIFFTabelle(database, text + ".dft"), text);
        EXPECT_THAT(addressCodes(database, {"an " + text, text}), ElementsAre(sortKey("an " + text)));
        EXPECT_TRUE(userDefinedRows(database, "PartTabelleBenutzDef", record).properties);
        EXPECT_TRUE(hasAdditionalDocuments(database, record.filename));
        EXPECT_EQ(VorlageSuchen(database, templateBranch(record)), record.filename);
        EXPECT_EQ(findDocument(database, DOCUMENT_TYPES[0], record.filename)->DokuBez, text);
        EXPECT_TRUE(isVisible(database, DOCUMENT_TYPES[0], record.filename, session_.rights.WhereStatus));
        EXPECT_FALSE(isVisible(database, DOCUMENT_TYPES[0], record.filename, " WHERE ( Status = 1)"));
        EXPECT_THAT(filesOf(database, DOCUMENT_TYPES[0], std::vector<Favourite>{{text, text}}),
                    ElementsAre(record.filename));
        EXPECT_TRUE(moveToFile(parts, {text, text, record.filename, 0}));
        EXPECT_EQ(parts.Text("DokuBez"), text);
        EXPECT_TRUE(moveToDocument(parts, {text, text, "", 0}));
        EXPECT_EQ(parts.Text("DokuBez"), text);
    }
}

TEST_P(StrangeTexts, AsNamesOfDocumentsFindWhereTheyAreUsed)
{
    insertDocuments();
    for (const std::string& text : strangeTexts())
        for (const RelationKind& kind : RELATION_KINDS) {
            SCOPED_TRACE(text + std::string(kind.node));
            const DokuRecord record = recordOf(text);
            EXPECT_TRUE(hasRelation(session_.database.connection, kind, record, record.filename));
            Recordset rows = relationRows(session_.database.connection, kind, record, record.filename);
            ASSERT_EQ(rows.RecordCount(), kind.sourceChoice == SourceChoice::All ? 2U : 1U);
            const RelationDocument document = documentAt(session_.database.connection, kind, rows);
            EXPECT_FALSE(document.details.empty);
            EXPECT_EQ(rows.Text(kind.components() ? kind.fields.filename : kind.fields.DokuBez),
                      kind.components() ? record.filename : text);
        }
}

// A text that is searched for is a pattern, but never more than that.
TEST_P(StrangeTexts, AsSearchTextsFindNothingElse)
{
    insertDocuments();
    Recordset parts;
    parts.Open("SELECT * FROM PartTabelle ORDER BY DokuBez", session_.database.connection);
    for (const std::string& text : strangeTexts()) {
        if (text.find_first_of("%_[") != std::string::npos)
            continue;
        EXPECT_TRUE(SuchenImRecordset(parts, text, "DokuBez", TextAtBegin, SearchStart::Above, world_.boxes));
        ASSERT_FALSE(parts.eof()) << text;
        EXPECT_TRUE(parts.Text("DokuBez").starts_with(text)) << text << " / " << parts.Text("DokuBez");
    }
}

} // namespace
} // namespace quelvarn
