#include "base/like_pattern.h"
#include "base/utf8.h"
#include "database/sql/access_text.h"
#include "database/sql/renderer.h"

#include <fmt/format.h>

namespace quelvarn::sql {
namespace {

std::string asAccessClass(const LikeToken& token)
{
    std::string text = token.negated ? "[!" : "[";
    for (std::size_t i = 0; i < token.members.size(); i += 2) {
        appendUtf8(text, token.members[i]);
        if (token.members[i] == token.members[i + 1])
            continue;
        text += '-';
        appendUtf8(text, token.members[i + 1]);
    }
    return text + "]";
}

// What the program calls a pattern, as Access reads it: "#", "*" and "?" are wildcards to it in some modes, and a
// bracket that is never closed is a fault. In brackets each stands for itself.
std::string alsAccessMuster(std::string_view muster)
{
    constexpr std::u32string_view SIGNS = U"[#*?%_";
    std::string text;
    for (const LikeToken& token : likeTokens(toUtf32(muster), Wildcards::Sql)) {
        if (token.kind == LikeToken::Kind::AnyRun)
            text += '%';
        else if (token.kind == LikeToken::Kind::AnyOne)
            text += '_';
        else if (token.kind == LikeToken::Kind::Class)
            text += asAccessClass(token);
        else if (SIGNS.find(token.character) != SIGNS.npos)
            text += fmt::format("[{}]", static_cast<char>(token.character));
        else
            appendUtf8(text, token.character);
    }
    return text;
}

// Relied on: its equality, order and DISTINCT are blind to case, Null is sorted first, LIKE through ODBC knows "%" and
// "_". A text meets its pattern or value as a bound parameter: no literal of it can be cut or misread. Numbers and
// dates are literals, since a placeholder has no type of its own in Access.
class AccessDialekt : public Dialekt
{
protected:
    std::string name(std::string_view name) const override { return accessName(name); }
    std::string_view schluesselspalte() const override { return {}; }
    std::string platzhalter(std::size_t, const Value&, FeldTyp) const override { return "?"; }

    std::optional<std::string> alsLiteral(const Value& wert) const override
    {
        return std::holds_alternative<std::string>(wert) ? std::nullopt : std::optional(accessLiteral(wert));
    }

    std::string vergleichsausdruck(const std::string& spalte) const override { return spalte; }
    std::string vergleichstext(const std::string& text) const override { return text; }
    Mustervergleich like(const std::string& ausdruck, const std::string& muster) const override
    {
        return {ausdruck + " LIKE ", alsAccessMuster(muster), ""};
    }
    bool engtMusterEin() const override { return false; }
    std::string genauGleich(const std::string& ausdruck, const std::string& text) const override
    {
        return fmt::format("StrComp({}, {}, 0) = 0", ausdruck, text);
    }
    // It turns them into text by itself, in the format of the computer.
    std::string alsText(const std::string& spalte, FeldTyp) const override { return spalte; }
    Value datumswert(Zeitpunkt zeit) const override { return zeit; }
    std::string sortiert(const std::string& ausdruck, bool absteigend) const override
    {
        return ausdruck + (absteigend ? " DESC" : "");
    }
    bool sortiertDistinct() const override { return true; }
    bool gruppiertDistinct(const Select&) const override { return false; }
    std::string_view niemals() const override { return "Null"; }
    // Rows that are equal in the order come beyond the limit; the reader ends earlier.
    std::string grenzeVorn(std::size_t grenze) const override { return fmt::format("TOP {} ", grenze); }
    std::string grenzeHinten(std::size_t) const override { return {}; }
};

} // namespace

const Dialekt& accessDialekt()
{
    static const AccessDialekt dialekt;
    return dialekt;
}

} // namespace quelvarn::sql
