#include "documents/table_stamps.h"

#include "base/collation.h"
#include "database/connection.h"
#include "database/recordset.h"

namespace quelvarn {

namespace {

constexpr std::size_t MINDESTZEILEN = 5;
constexpr int VORLAUF_SEKUNDEN = 60;

// Stands on the stamp's row; false when there is none that counts.
bool oeffneAufZeile(Recordset& zeilen, Connection& verbindung, std::string_view schluessel, SperrTyp sperre)
{
    zeilen.Open("SELECT Feld3, Feld4 FROM Ini WHERE  Feld1 = '!QV_Ini' AND Feld2 = 'WriteDB'", verbindung,
                CursorTyp::Statisch, sperre);
    if (zeilen.RecordCount() < MINDESTZEILEN)
        return false;
    while (!zeilen.Eof() && toUpper(zeilen.Text("Feld3")) != schluessel)
        zeilen.MoveNext();
    return !zeilen.Eof();
}

} // namespace

std::optional<Zeitpunkt> leseStempel(Connection& verbindung, std::string_view schluessel)
{
    Recordset zeilen;
    if (!oeffneAufZeile(zeilen, verbindung, schluessel, SperrTyp::NurLesen))
        return std::nullopt;
    return alsDatum(zeilen.Feld("Feld4"));
}

void setzeStempel(Connection& verbindung, std::string_view schluessel, Zeitpunkt jetzt)
{
    Recordset zeilen;
    if (schluessel.empty() || !oeffneAufZeile(zeilen, verbindung, schluessel, SperrTyp::Optimistisch))
        return;
    zeilen.setzeFeld("Feld4", alsText(jetzt.plusSekunden(VORLAUF_SEKUNDEN)));
    zeilen.Update();
}

} // namespace quelvarn
