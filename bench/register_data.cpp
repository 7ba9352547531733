#include "bench/register_data.h"

#include "bench/sample_document.h"
#include "database/connection.h"
#include "database/new_database.h"
#include "database/recordset.h"
#include "database/sql/conditions.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <functional>
#include <numeric>
#include <utility>
#include <vector>

namespace quelvarn::bench {

namespace {

constexpr std::size_t PART = 0;
constexpr std::size_t ASSEMB = 2;
constexpr std::size_t DRAFT = 3;
constexpr std::size_t EIGENSCHAFTEN = 5;       // User-defined, of each part.
constexpr std::size_t DOKUMENTE_SONST = 2'000; // In each of the seven other tables.

using Zellenquelle = std::function<Value(std::size_t zeile, const Spalte& spalte)>;

void schreibe(Engine& engine, const Tabellenschema& tabelle, std::size_t zeilen, const Zellenquelle& zelle)
{
    engine.legeTabelleAn(tabelle);
    const auto schreiber = engine.massenschreiber(tabelle.name, tabelle.spalten);
    std::vector<Value> werte(tabelle.spalten.size());
    for (std::size_t zeile = 0; zeile < zeilen; ++zeile) {
        for (std::size_t spalte = 0; spalte < werte.size(); ++spalte)
            werte[spalte] = zelle(zeile, tabelle.spalten[spalte]);
        schreiber->zeile(werte);
    }
    schreiber->beende();
    engine.legeIndexeAn(tabelle);
}

// What stands in a table that relates a document to a part, by the name of the column.
Value beziehung(const Musterdokument& dokument, const Musterdokument& teil, const std::string& spalte)
{
    if (spalte == "DokuBez" || spalte.ends_with("DokuBez") || spalte.starts_with("DokuBez"))
        return dokument.bezeichnung();
    if (spalte.ends_with("RevBez") || spalte.starts_with("RevBez"))
        return dokument.revision();
    if (spalte == "Part" || spalte == "PfadAssembPart" || spalte == "Dokufilename")
        return teil.pfad();
    if (spalte == "DateinameAssembPart")
        return teil.dateiname();
    if (spalte.find("filename") != std::string::npos)
        return dokument.pfad();
    return dokument.dateiname();
}

// The k-th user-defined property of a document: a few values, many, and the path of a file.
Value eigenschaftswert(std::size_t k, std::size_t nummer, const std::string& spalte)
{
    constexpr std::array<std::string_view, EIGENSCHAFTEN> NAMEN{"Werkstoff", "Oberfläche", "Gewicht", "Kunde", "Notiz"};
    if (spalte == "Name")
        return std::string(NAMEN[k]);
    const std::array<std::string, EIGENSCHAFTEN> werte{
        fmt::format("Stahl {}", nummer % 10), fmt::format("verzinkt {}", nummer % 7),
        fmt::format("{},5 kg", nummer % 5000), fmt::format("Kunde {}", nummer % 300),
        fmt::format("W:\\Konstruktion\\Ablage\\Notizen\\Notiz {}.txt", nummer % 1000)};
    return werte[k];
}

Value eigenschaft(const Musterdokument& teil, std::size_t k, std::size_t nummer, const Spalte& spalte)
{
    if (spalte.typ != FeldTyp::Text)
        return static_cast<std::int64_t>(nummer % ANZAHL_STATUS);
    if (spalte.name == "DokuBez")
        return teil.bezeichnung();
    if (spalte.name == "RevBez")
        return teil.revision();
    if (spalte.name == "Name" || spalte.name == "Wert")
        return eigenschaftswert(k, nummer, spalte.name);
    return fmt::format("{} {}", spalte.name, nummer % 50);
}

class Registerbau
{
public:
    Registerbau(Engine& engine, std::size_t dokumente) : engine_(engine), dokumente_(dokumente) {}

    // The settings come last: where they are the register is whole.
    void baue()
    {
        for (const DokuTyp& typ : DOKUTYPEN)
            dokumente(typ, typ.tab == PART ? dokumente_ : DOKUMENTE_SONST);
        eigenschaften();
        beziehungen("ZusBauPart", ASSEMB, 4);
        beziehungen("VerbindungDraftPart", DRAFT, 5);
        beziehungen("VerbindungPartZusDoku", DRAFT, 10);
        for (const Tabellenschema& tabelle : registerschema())
            if (!engine_.findTabelle(tabelle.name) && tabelle.name != "Ini")
                schreibe(engine_, tabelle, 0, {});
        einstellungen();
    }

private:
    // Rows lie in the file in another order than that of their names, as scanning leaves them.
    static std::size_t nummer(std::size_t zeile, std::size_t anzahl)
    {
        std::size_t sprung = 7'368'787;
        while (std::gcd(sprung, anzahl) != 1)
            ++sprung;
        return zeile * sprung % anzahl;
    }

    void dokumente(const DokuTyp& typ, std::size_t anzahl)
    {
        schreibe(engine_, *findTabelle(typ.tabelle), anzahl, [&](std::size_t zeile, const Spalte& spalte) {
            return Musterdokument(typ, nummer(zeile, anzahl)).wert(spalte, quelle_);
        });
    }

    void eigenschaften()
    {
        schreibe(engine_, *findTabelle(DOKUTYPEN[PART].tabelleBenutzDef), dokumente_ * EIGENSCHAFTEN,
                 [this](std::size_t zeile, const Spalte& spalte) {
                     const std::size_t teil = nummer(zeile / EIGENSCHAFTEN, dokumente_);
                     return eigenschaft(Musterdokument(DOKUTYPEN[PART], teil), zeile % EIGENSCHAFTEN, teil, spalte);
                 });
    }

    // A document of this type for every n-th part.
    void beziehungen(std::string_view tabelle, std::size_t typ, std::size_t jedes)
    {
        schreibe(engine_, *findTabelle(tabelle), dokumente_ / jedes, [&](std::size_t zeile, const Spalte& spalte) {
            return beziehung(Musterdokument(DOKUTYPEN[typ], zeile % DOKUMENTE_SONST),
                             Musterdokument(DOKUTYPEN[PART], zeile * jedes), spalte.name);
        });
    }

    void einstellungen()
    {
        schreibe(engine_, *findTabelle("Ini"), ANZAHL_STATUS, [](std::size_t zeile, const Spalte& spalte) -> Value {
            const std::string werte[]{std::string(ANWENDER), "Berechtigung", fmt::format("{}_Status", zeile), "1", "0"};
            return werte[spalte.name.back() - '1'];
        });
    }

    Engine& engine_;
    std::size_t dokumente_;
    std::mt19937 quelle_{1};
};

std::int64_t zaehle(Connection& verbindung, std::string_view tabelle)
{
    if (!verbindung.engine().findTabelle(tabelle))
        return 0;
    Recordset anzahl;
    sql::Select count = sql::Query(tabelle);
    count.anzahl = true;
    anzahl.Open(std::move(count), verbindung);
    return alsGanzzahl(anzahl.Zelle(0, anzahl.Felder().front().name));
}

bool istBereit(const std::filesystem::path& datei, std::size_t dokumente)
{
    if (!std::filesystem::exists(datei))
        return false;
    Connection verbindung;
    verbindung.Open(datei);
    return zaehle(verbindung, DOKUTYPEN[PART].tabelle) == static_cast<std::int64_t>(dokumente) &&
           zaehle(verbindung, DOKUTYPEN[PART].tabelleBenutzDef) ==
               static_cast<std::int64_t>(dokumente * EIGENSCHAFTEN) &&
           zaehle(verbindung, "Ini") > 0;
}

} // namespace

void legeRegisterBereit(const std::filesystem::path& datei, std::size_t dokumente)
{
    if (istBereit(datei, dokumente))
        return;
    fmt::print("making a register of {} documents in {}\n", dokumente, datei.string());
    std::filesystem::remove(datei);
    const auto engine = oeffneSqlite(datei, true);
    Registerbau(*engine, dokumente).baue();
}

} // namespace quelvarn::bench
