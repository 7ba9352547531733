#include "base/collation.h"
#include "base/like_pattern.h"
#include "base/text.h"
#include "base/utf8.h"
#include "database/schema.h"
#include "database/sql/renderer.h"

#include <algorithm>
#include <fmt/format.h>
#include <vector>

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

std::string asRegexClass(const LikeToken& token)
{
    std::string ranges;
    for (std::size_t i = 0; i < token.members.size(); i += 2) {
        const char32_t first = token.members[i];
        const char32_t last = token.members[i + 1];
        if (first <= last)
            ranges += alsRegexZeichen(first) + (first < last ? "-" + alsRegexZeichen(last) : "");
    }
    if (ranges.empty()) // A range the wrong way round holds nothing.
        return token.negated ? "." : "(?!)";
    return (token.negated ? "[^" : "[") + ranges + "]";
}

std::string asRegex(const std::vector<LikeToken>& pattern)
{
    std::string regex = "^";
    for (const LikeToken& token : pattern) {
        switch (token.kind) {
        case LikeToken::Kind::Char:
            regex += alsRegexZeichen(token.character);
            break;
        case LikeToken::Kind::AnyOne:
            regex += '.';
            break;
        case LikeToken::Kind::AnyRun:
            regex += ".*";
            break;
        case LikeToken::Kind::Class:
            regex += asRegexClass(token);
            break;
        }
    }
    return regex + "$";
}

// A pattern of the server's own LIKE, which knows no classes: "\\" takes the meaning from the character behind it.
std::string asServerPattern(const std::vector<LikeToken>& pattern)
{
    std::string text;
    for (const LikeToken& token : pattern) {
        if (token.kind == LikeToken::Kind::AnyRun)
            text += '%';
        else if (token.kind == LikeToken::Kind::AnyOne)
            text += '_';
        else if (token.character == U'%' || token.character == U'_' || token.character == U'\\')
            (text += '\\') += static_cast<char>(token.character);
        else
            appendUtf8(text, token.character);
    }
    return text;
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

    Mustervergleich like(const std::string& ausdruck, const std::string& muster) const override
    {
        const std::vector<LikeToken> tokens = likeTokens(toUtf32(foldCase(muster)), Wildcards::Sql);
        if (std::ranges::find(tokens, LikeToken::Kind::Class, &LikeToken::kind) != tokens.end())
            return {"qv_fold(" + ausdruck + ") ~ ", asRegex(tokens), ""};
        return {"qv_fold(" + ausdruck + ") LIKE ", asServerPattern(tokens), " ESCAPE '\\'"};
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
