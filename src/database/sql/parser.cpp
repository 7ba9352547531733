#include "database/sql/parser.h"

#include "base/collation.h"
#include "base/runtime_error.h"
#include "database/sql/condition_parser.h"
#include "database/sql/literal.h"
#include "database/sql/reader.h"

#include <utility>

namespace quelvarn::sql {
namespace {

// Reads one statement.
class Anweisungsparser
{
public:
    explicit Anweisungsparser(std::string_view text) : leser_(text), literale_(leser_, Datumsfolge::MonatZuerst) {}

    Anweisung lies()
    {
        Anweisung anweisung = beliebige();
        leser_.verlangeEnde();
        return anweisung;
    }

private:
    Anweisung beliebige()
    {
        if (leser_.nimmWort("SELECT"))
            return select();
        if (leser_.nimmWort("INSERT"))
            return insert();
        if (leser_.nimmWort("UPDATE"))
            return update();
        if (leser_.nimmWort("DELETE"))
            return loeschen();
        leser_.syntaxfehler();
    }

    Select select()
    {
        Select anweisung;
        anweisung.distinct = leser_.nimmWort("DISTINCT");
        anweisung.anzahl = nimmAnzahl();
        if (!anweisung.anzahl && !leser_.nimmZeichen("*"))
            anweisung.spalten = spaltenliste();
        leser_.verlangeWort("FROM");
        anweisung.tabelle = leser_.verlangeName();
        nimmEinsamenApostroph();
        anweisung.where = where(Stelle::Bedingung);
        if (!anweisung.anzahl)
            anweisung.orderBy = sortierung();
        pruefeTabellen(anweisung.tabelle);
        return anweisung;
    }

    Insert insert()
    {
        Insert anweisung;
        leser_.verlangeWort("INTO");
        anweisung.tabelle = leser_.verlangeName();
        leser_.verlangeZeichen("(");
        for (std::string& name : spaltenliste())
            anweisung.werte.push_back({std::move(name), {}});
        leser_.verlangeZeichen(")");
        leser_.verlangeWort("VALUES");
        leser_.verlangeZeichen("(");
        for (Zuweisung& zuweisung : anweisung.werte) {
            if (&zuweisung != &anweisung.werte.front())
                leser_.verlangeZeichen(",");
            zuweisung.wert = literale_.lies(Stelle::Einfuegewert, 0);
        }
        leser_.verlangeZeichen(")");
        pruefeTabellen(anweisung.tabelle);
        return anweisung;
    }

    Update update()
    {
        Update anweisung;
        anweisung.tabelle = leser_.verlangeName();
        leser_.verlangeWort("SET");
        do {
            std::string name = spalte();
            leser_.verlangeZeichen("=");
            anweisung.werte.push_back({std::move(name), literale_.lies(Stelle::Zuweisung, 0)});
        } while (leser_.nimmZeichen(","));
        anweisung.where = where(Stelle::Filterbedingung);
        pruefeTabellen(anweisung.tabelle);
        return anweisung;
    }

    Delete loeschen()
    {
        Delete anweisung;
        leser_.nimmZeichen("*");
        leser_.verlangeWort("FROM");
        anweisung.tabelle = leser_.verlangeName();
        anweisung.where = where(Stelle::Filterbedingung);
        pruefeTabellen(anweisung.tabelle);
        return anweisung;
    }

    // Count(*); a column may be called Count.
    bool nimmAnzahl()
    {
        Leser voraus = leser_;
        if (!voraus.nimmWort("COUNT") || !voraus.nimmZeichen("(") || !voraus.nimmZeichen("*") ||
            !voraus.nimmZeichen(")"))
            return false;
        leser_.gehezu(voraus.position());
        return true;
    }

    // One list of addresses is asked for with an apostrophe too many behind the table.
    void nimmEinsamenApostroph()
    {
        Leser voraus = leser_;
        if (voraus.nimmZeichen("'") && voraus.nimmEnde())
            leser_.gehezu(voraus.position());
    }

    AusdruckZeiger where(Stelle stelle)
    {
        if (!leser_.nimmWort("WHERE"))
            return nullptr;
        Bedingungsparser bedingung(leser_, literale_, stelle);
        AusdruckZeiger gelesen = bedingung.lies();
        tabellen_.insert(tabellen_.end(), bedingung.tabellen().begin(), bedingung.tabellen().end());
        return gelesen;
    }

    std::vector<Sortierung> sortierung()
    {
        std::vector<Sortierung> gelesen;
        if (!leser_.nimmWort("ORDER"))
            return gelesen;
        leser_.verlangeWort("BY");
        do {
            std::string name = spalte();
            const bool absteigend = leser_.nimmWort("DESC");
            if (!absteigend)
                leser_.nimmWort("ASC");
            gelesen.push_back({std::move(name), absteigend});
        } while (leser_.nimmZeichen(","));
        return gelesen;
    }

    std::vector<std::string> spaltenliste()
    {
        std::vector<std::string> gelesen;
        do {
            gelesen.push_back(spalte());
        } while (leser_.nimmZeichen(","));
        return gelesen;
    }

    std::string spalte()
    {
        Spaltenname name = leser_.verlangeSpalte();
        if (!name.tabelle.empty())
            tabellen_.push_back(std::move(name.tabelle));
        return std::move(name.spalte);
    }

    // A column's table is known only when the table of the statement is.
    void pruefeTabellen(std::string_view tabelle) const
    {
        for (const std::string& vorn : tabellen_) {
            if (!equalText(vorn, tabelle))
                throw Laufzeitfehler(FEHLER_SYNTAX, "Datenbank",
                                     "Die Tabelle '" + vorn + "' kommt in der Anweisung nicht vor.");
        }
    }

    Leser leser_;
    Literalleser literale_;
    std::vector<std::string> tabellen_; // Those that stood in front of columns.
};

} // namespace

Anweisung parseAnweisung(std::string_view text)
{
    return Anweisungsparser(text).lies();
}

AusdruckZeiger parseBedingung(std::string_view text, Datumsfolge folge, Wildcards wildcards)
{
    Leser leser(text);
    if (leser.nimmEnde())
        return nullptr;
    Literalleser literale(leser, folge);
    Bedingungsparser parser(leser, literale, Stelle::Filterbedingung, wildcards);
    AusdruckZeiger bedingung = parser.lies();
    leser.verlangeEnde();
    if (!parser.tabellen().empty())
        throw Laufzeitfehler(FEHLER_SYNTAX, "Datenbank",
                             "Die Tabelle '" + parser.tabellen().front() + "' kommt in der Anweisung nicht vor.");
    return bedingung;
}

} // namespace quelvarn::sql
