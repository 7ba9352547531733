#include "base/collation.h"
#include "base/text.h"
#include "base/utf8.h"
#include "database/schema.h"
#include "database/sql/renderer.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn::sql {
namespace {

// How placeholders are written. Behind ODBC they have no numbers, and the tables no row key of ours.
enum class Zaehlung { Nummern, Keine };

class SqliteDialekt : public Dialekt
{
public:
    explicit SqliteDialekt(Zaehlung zaehlung) : zaehlung_(zaehlung) {}

protected:
    std::string_view schluesselspalte() const override { return zaehlung_ == Zaehlung::Nummern ? "rowid" : ""; }

    std::string platzhalter(std::size_t nummer, const Value&, FeldTyp) const override
    {
        return zaehlung_ == Zaehlung::Nummern ? fmt::format("?{}", nummer) : "?";
    }

    std::string vergleichsausdruck(const std::string& spalte) const override { return spalte; }
    std::string vergleichstext(const std::string& text) const override { return text; }

    Mustervergleich like(const std::string& ausdruck, const std::string& muster) const override
    {
        return {"qv_like(", muster, ", " + ausdruck + ")"};
    }

    std::string genauGleich(const std::string& ausdruck, const std::string& text) const override
    {
        return fmt::format("{} COLLATE BINARY = {}", ausdruck, text);
    }

    std::string alsText(const std::string& spalte, FeldTyp typ) const override
    {
        if (typ == FeldTyp::Datum)
            return fmt::format("replace(strftime('%d.%m.%Y %H:%M:%S', {}), ' 00:00:00', '')", spalte);
        if (typ == FeldTyp::Ganzzahl)
            return fmt::format("CAST({} AS TEXT)", spalte);
        // printf would make a number of Null.
        return fmt::format("iif({0} IS NULL, NULL, replace(printf('%.15g', {0}), '.', ','))", spalte);
    }

    Value datumswert(Zeitpunkt zeit) const override { return formatIso(zeit); }

    std::string sortiert(const std::string& ausdruck, bool absteigend) const override
    {
        return ausdruck + (absteigend ? " DESC" : "");
    }

    bool sortiertDistinct() const override { return true; }

    // Without a condition the table is read in the order of storage, unless an index that begins with the column
    // serves instead.
    bool gruppiertDistinct(const Select& anweisung) const override
    {
        if (zaehlung_ == Zaehlung::Keine || anweisung.spalten.size() != 1 || anweisung.where ||
            !anweisung.orderBy.empty())
            return false;
        const Tabellenschema* tabelle = findTabelle(anweisung.tabelle);
        return tabelle && std::ranges::any_of(tabelle->indexe, [&](const auto& index) {
                   return equalText(index.front().name, anweisung.spalten.front());
               });
    }

    std::string_view niemals() const override { return "NULL"; }

private:
    Zaehlung zaehlung_;
};

// A character of a regular expression, inside or outside of a class, that means nothing but itself.
std::string alsRegexZeichen(char32_t zeichen)
{
    const bool harmlos = (zeichen >= U'a' && zeichen <= U'z') || (zeichen >= U'A' && zeichen <= U'Z') ||
                         (zeichen >= U'0' && zeichen <= U'9');
    return harmlos ? std::string(1, static_cast<char>(zeichen))
                   : fmt::format("\\U{:08x}", static_cast<std::uint32_t>(zeichen));
}

// The inside of "[..]". Read as LikePattern reads it.
std::string alsRegexKlasse(std::u32string_view zeichen)
{
    const bool verneint = zeichen.size() > 1 && (zeichen.front() == U'!' || zeichen.front() == U'^');
    zeichen.remove_prefix(verneint ? 1 : 0);
    if (zeichen.empty())
        return {};
    std::string bereiche;
    for (std::size_t i = 0; i < zeichen.size(); ++i) {
        const bool bereich = i + 2 < zeichen.size() && zeichen[i + 1] == U'-';
        const char32_t letztes = zeichen[bereich ? i + 2 : i];
        if (zeichen[i] <= letztes)
            bereiche += alsRegexZeichen(zeichen[i]) + (bereich ? "-" + alsRegexZeichen(letztes) : "");
        i += bereich ? 2 : 0;
    }
    if (bereiche.empty()) // A range the wrong way round holds nothing.
        return verneint ? "." : "(?!)";
    return (verneint ? "[^" : "[") + bereiche + "]";
}

std::string alsRegex(std::u32string_view muster)
{
    std::string regex = "^";
    for (std::size_t i = 0; i < muster.size(); ++i) {
        const std::size_t ende = muster[i] == U'[' ? muster.find(U']', i) : muster.npos;
        if (muster[i] == U'%') {
            regex += ".*";
        } else if (muster[i] == U'_') {
            regex += '.';
        } else if (ende != muster.npos) {
            regex += alsRegexKlasse(muster.substr(i + 1, ende - i - 1));
            i = ende;
        } else {
            regex += alsRegexZeichen(muster[i]);
        }
    }
    return regex + "$";
}

class PostgresDialekt : public Dialekt
{
public:
    explicit PostgresDialekt(Zaehlung zaehlung) : zaehlung_(zaehlung) {}

protected:
    std::string_view schluesselspalte() const override { return zaehlung_ == Zaehlung::Nummern ? "qv_id" : ""; }

    // The server would take the type of a placeholder from its column and refuse what is too large or no integer.
    std::string platzhalter(std::size_t nummer, const Value& wert, FeldTyp typ) const override
    {
        std::string stelle = zaehlung_ == Zaehlung::Nummern ? fmt::format("${}", nummer) : "?";
        switch (typ) {
        case FeldTyp::Text:
            break;
        case FeldTyp::Ganzzahl:
            return stelle + (std::holds_alternative<double>(wert) ? "::float8" : "::bigint");
        case FeldTyp::Gleitkomma:
            return stelle + "::float8";
        case FeldTyp::Datum:
            return stelle + "::timestamp";
        }
        return stelle;
    }

    std::string vergleichsausdruck(const std::string& spalte) const override { return "qv_key(" + spalte + ")"; }
    std::string vergleichstext(const std::string& text) const override { return sortKey(text); }

    // LIKE of the server knows no classes.
    Mustervergleich like(const std::string& ausdruck, const std::string& muster) const override
    {
        const std::string gefaltet = foldCase(muster);
        const std::size_t klasse = gefaltet.find('[');
        if (klasse != std::string::npos && gefaltet.find(']', klasse) != std::string::npos)
            return {"qv_fold(" + ausdruck + ") ~ ", alsRegex(toUtf32(gefaltet)), ""};
        return {"qv_fold(" + ausdruck + ") LIKE ", replaceAll(gefaltet, "\\", "\\\\"), " ESCAPE '\\'"};
    }

    std::string genauGleich(const std::string& ausdruck, const std::string& text) const override
    {
        return fmt::format("{} = {}", ausdruck, text);
    }

    std::string alsText(const std::string& spalte, FeldTyp typ) const override
    {
        if (typ == FeldTyp::Datum)
            return fmt::format("replace(to_char({}, 'DD.MM.YYYY HH24:MI:SS'), ' 00:00:00', '')", spalte);
        return fmt::format("replace(CAST({} AS text), '.', ',')", spalte);
    }

    Value datumswert(Zeitpunkt zeit) const override { return zeit; }

    std::string sortiert(const std::string& ausdruck, bool absteigend) const override
    {
        return ausdruck + (absteigend ? " DESC NULLS LAST" : " ASC NULLS FIRST");
    }

    bool sortiertDistinct() const override { return false; }
    bool gruppiertDistinct(const Select&) const override { return zaehlung_ == Zaehlung::Nummern; }
    std::string_view niemals() const override { return "NULL::boolean"; }

private:
    Zaehlung zaehlung_;
};

} // namespace

const Dialekt& sqliteDialekt()
{
    static const SqliteDialekt dialekt(Zaehlung::Nummern);
    return dialekt;
}

const Dialekt& postgresDialekt()
{
    static const PostgresDialekt dialekt(Zaehlung::Nummern);
    return dialekt;
}

const Dialekt& sqliteOdbcDialekt()
{
    static const SqliteDialekt dialekt(Zaehlung::Keine);
    return dialekt;
}

const Dialekt& postgresOdbcDialekt()
{
    static const PostgresDialekt dialekt(Zaehlung::Keine);
    return dialekt;
}

} // namespace quelvarn::sql
