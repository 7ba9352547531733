#include "base/runtime_error.h"
#include "database/sql/conditions.h"
#include "database/sql/parser.h"
#include "database/sql/renderer.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace quelvarn;
using namespace quelvarn::sql;

namespace {

const Tabellenschema PARTS{"PartTabelle",
                           {{"DokuBez", FeldTyp::Text},
                            {"Größe", FeldTyp::Text},
                            {"Status", FeldTyp::Ganzzahl},
                            {"Hauptwert_a", FeldTyp::Gleitkomma},
                            {"Erstellt", FeldTyp::Datum}},
                           {}};

// The parameters as they would be read, divided by "|".
std::string parameter(const Gerendert& gerendert)
{
    std::string text;
    for (const Value& wert : gerendert.parameter) {
        text += text.empty() ? "" : "|";
        text += std::holds_alternative<std::string>(wert) ? "'" + alsText(wert) + "'" : alsText(wert);
    }
    return text;
}

Gerendert gerendert(const Dialekt& dialekt, std::string_view sql, std::size_t grenze = 0)
{
    const Anweisung anweisung = parseAnweisung(sql);
    if (const auto* select = std::get_if<Select>(&anweisung))
        return dialekt.select(*select, PARTS, MitSchluessel::Nein, grenze);
    return dialekt.aenderung(anweisung, PARTS);
}

} // namespace

TEST(SqlRenderer, RefusesWhatTheTableDoesNotHave)
{
    const std::vector<std::pair<std::string, int>> faelle{
        {"SELECT Preis FROM PartTabelle", FEHLER_FELD_FEHLT},
        {"SELECT * FROM PartTabelle WHERE Preis = 1", FEHLER_FELD_FEHLT},
        {"SELECT * FROM PartTabelle ORDER BY Preis", FEHLER_FELD_FEHLT},
        {"SELECT DISTINCT DokuBez FROM PartTabelle ORDER BY Status", FEHLER_FELD_FEHLT},
        {"UPDATE PartTabelle SET Preis = 1", FEHLER_FELD_FEHLT},
        {"UPDATE PartTabelle SET Status = 'offen'", FEHLER_DATENTYP},
        {"INSERT INTO PartTabelle (Erstellt) VALUES ('')", FEHLER_DATENTYP},
    };
    for (const auto& [sql, nummer] : faelle) {
        try {
            gerendert(sqliteDialekt(), sql);
            ADD_FAILURE() << sql;
        } catch (const Laufzeitfehler& fehler) {
            EXPECT_EQ(fehler.nummer(), nummer) << fehler.beschreibung();
        }
    }
}

TEST(SqlRenderer, AccessIsTakenAtItsWord)
{
    const std::pair<std::string, std::string> faelle[] = {
        {"Select DokuBez, Status From PartTabelle Where Größe = 'ä''b' Order By DokuBez, Status Desc",
         "SELECT TOP 5 [DokuBez], [Status] FROM [PartTabelle] WHERE [Größe] = ? ORDER BY [DokuBez], [Status] DESC <- "
         "'ä'b'"},
        {"Select Distinct DokuBez From PartTabelle Where DokuBez Not Like '' And DokuBez Like 'a#%*_[a-c]?[b'",
         "SELECT DISTINCT TOP 5 [DokuBez] FROM [PartTabelle] WHERE (NOT ([DokuBez] LIKE ?) AND [DokuBez] LIKE ?) <- "
         "''|'a[#]%[*]_[a-c][?][[]b'"},
        {"Select Count(*) From PartTabelle Where Erstellt >= #03/07/06 13:59:01# And Status = '3'",
         "SELECT COUNT(*) FROM [PartTabelle] WHERE ([Erstellt] >= #03/07/2006 13:59:01# AND [Status] = 3) <- "},
        {"Update PartTabelle Set Hauptwert_a = 1.5, Größe = Null Where Status Is Null",
         "UPDATE [PartTabelle] SET [Hauptwert_a] = 1.5, [Größe] = Null WHERE [Status] IS NULL <- "},
        {"Insert Into PartTabelle (DokuBez, Status) Values ('a', 2)",
         "INSERT INTO [PartTabelle] ([DokuBez], [Status]) VALUES (?, 2) <- 'a'"},
    };
    for (const auto& [anweisung, erwartet] : faelle) {
        const Gerendert fertig = gerendert(accessDialekt(), anweisung, 5);
        EXPECT_EQ(fertig.text + " <- " + parameter(fertig), erwartet);
    }
    const Select gefiltert =
        Query("PartTabelle").columns({"DokuBez"}).where(like("DokuBez", "a#%*_[a]?]", Wildcards::Star));
    EXPECT_EQ(parameter(accessDialekt().select(gefiltert, PARTS, MitSchluessel::Nein)), "'a[#][%]%[_][[]a][?]]'");
    const Zuweisung bild[] = {{"DokuBez", std::string("a")}, {"Größe", {}}, {"Status", std::int64_t{2}}};
    const Gerendert loeschen = accessDialekt().loescheZeile(PARTS, bild);
    EXPECT_EQ(loeschen.text,
              "DELETE FROM [PartTabelle] WHERE StrComp([DokuBez], ?, 0) = 0 AND [Größe] IS NULL AND [Status] = 2");
}
