#include "database/sql/condition_parser.h"

#include "database/sql/comparison_signs.h"

#include <utility>

namespace quelvarn::sql {
namespace {

// Brackets and NOTs within one another. Keeps a hostile text from using up the stack.
constexpr int GROESSTE_TIEFE = 200;

template <class T> AusdruckZeiger ausdruck(T inhalt)
{
    return std::make_unique<Ausdruck>(Ausdruck{std::move(inhalt)});
}

AusdruckZeiger vergleiche(const std::string& spalte, Vergleich vergleich, Value wert)
{
    return ausdruck(Bedingung{spalte, vergleich, std::move(wert)});
}

template <class T> AusdruckZeiger verbunden(T verbindung)
{
    if (verbindung.teile.size() == 1)
        return std::move(verbindung.teile.front());
    return ausdruck(std::move(verbindung));
}

} // namespace

AusdruckZeiger Bedingungsparser::lies()
{
    return oder();
}

AusdruckZeiger Bedingungsparser::oder()
{
    Oder verbindung;
    do {
        verbindung.teile.push_back(und());
    } while (leser_.nimmWort("OR"));
    return verbunden(std::move(verbindung));
}

AusdruckZeiger Bedingungsparser::und()
{
    Und verbindung;
    do {
        verbindung.teile.push_back(nicht());
    } while (leser_.nimmWort("AND"));
    return verbunden(std::move(verbindung));
}

AusdruckZeiger Bedingungsparser::nicht()
{
    if (++tiefe_ > GROESSTE_TIEFE)
        leser_.syntaxfehler();
    AusdruckZeiger gelesen;
    if (leser_.nimmWort("NOT"))
        gelesen = ausdruck(Nicht{nicht()});
    else
        gelesen = leser_.vorschau() == '(' ? klammer() : vergleich();
    --tiefe_;
    return gelesen;
}

AusdruckZeiger Bedingungsparser::klammer()
{
    leser_.verlangeZeichen("(");
    ++klammern_;
    AusdruckZeiger inhalt = oder();
    --klammern_;
    leser_.verlangeZeichen(")");
    return inhalt;
}

AusdruckZeiger Bedingungsparser::vergleich()
{
    Spaltenname name = leser_.verlangeSpalte();
    if (!name.tabelle.empty())
        tabellen_.push_back(std::move(name.tabelle));
    for (const Vergleichszeichen& zeichen : VERGLEICHSZEICHEN) {
        if (leser_.nimmZeichen(zeichen.text))
            return vergleiche(name.spalte, zeichen.vergleich, literal());
    }
    return vergleichMitWort(name.spalte);
}

AusdruckZeiger Bedingungsparser::vergleichMitWort(const std::string& spalte)
{
    if (leser_.nimmWort("IS")) {
        const bool verneint = leser_.nimmWort("NOT");
        leser_.verlangeWort("NULL");
        return ausdruck(IstNull{spalte, verneint});
    }
    const bool verneint = leser_.nimmWort("NOT");
    if (leser_.nimmWort("LIKE"))
        return muster(spalte, verneint ? Vergleich::NotLike : Vergleich::Like);
    AusdruckZeiger gelesen;
    if (leser_.nimmWort("IN"))
        gelesen = liste(spalte);
    else if (leser_.nimmWort("BETWEEN"))
        gelesen = bereich(spalte);
    else
        leser_.syntaxfehler();
    return verneint ? ausdruck(Nicht{std::move(gelesen)}) : std::move(gelesen);
}

AusdruckZeiger Bedingungsparser::muster(const std::string& spalte, Vergleich vergleich)
{
    const std::size_t anfang = leser_.position();
    Value wert = literal();
    if (!std::holds_alternative<std::string>(wert))
        leser_.syntaxfehler(anfang);
    return ausdruck(Bedingung{spalte, vergleich, std::move(wert), wildcards_});
}

AusdruckZeiger Bedingungsparser::liste(const std::string& spalte)
{
    Oder werte;
    leser_.verlangeZeichen("(");
    do {
        werte.teile.push_back(vergleiche(spalte, Vergleich::Gleich, literale_.lies(Stelle::Liste, klammern_)));
    } while (leser_.nimmZeichen(","));
    leser_.verlangeZeichen(")");
    return verbunden(std::move(werte));
}

AusdruckZeiger Bedingungsparser::bereich(const std::string& spalte)
{
    Und grenzen;
    grenzen.teile.push_back(
        vergleiche(spalte, Vergleich::GroesserGleich, literale_.lies(Stelle::ErsteGrenze, klammern_)));
    leser_.verlangeWort("AND");
    grenzen.teile.push_back(vergleiche(spalte, Vergleich::KleinerGleich, literal()));
    return ausdruck(std::move(grenzen));
}

} // namespace quelvarn::sql
