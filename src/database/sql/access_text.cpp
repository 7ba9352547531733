#include "database/sql/access_text.h"

#include "base/text.h"
#include "database/sql/comparison_signs.h"

#include <fmt/format.h>

namespace quelvarn::sql {
namespace {

template <class Liste, class Text> std::string verbunden(const Liste& liste, std::string_view dazwischen, Text text)
{
    std::vector<std::string> teile;
    for (const auto& eintrag : liste)
        teile.push_back(text(eintrag));
    return join(teile, dazwischen);
}

struct Literal
{
    std::string operator()(std::monostate) const { return "Null"; }
    std::string operator()(std::int64_t zahl) const { return fmt::format("{}", zahl); }
    std::string operator()(double zahl) const { return fmt::format("{}", zahl); }
    std::string operator()(const std::string& text) const { return "'" + replaceAll(text, "'", "''") + "'"; }
    std::string operator()(Zeitpunkt zeit) const
    {
        const Kalenderzeit k = zeit.kalender();
        return fmt::format("#{:02}/{:02}/{:04} {:02}:{:02}:{:02}#", k.monat, k.tag, k.jahr, k.stunde, k.minute,
                           k.sekunde);
    }
};

struct Bedingungstext
{
    std::string operator()(const Bedingung& b) const
    {
        const auto* pattern = std::get_if<std::string>(&b.wert);
        if (pattern && (b.vergleich == Vergleich::Like || b.vergleich == Vergleich::NotLike))
            return fmt::format("{} {} {}", accessName(b.spalte), zeichenOf(b.vergleich),
                               accessLiteral(asSqlPattern(*pattern, b.wildcards)));
        return fmt::format("{} {} {}", accessName(b.spalte), zeichenOf(b.vergleich), accessLiteral(b.wert));
    }
    std::string operator()(const IstNull& i) const
    {
        return accessName(i.spalte) + (i.verneint ? " Is Not Null" : " Is Null");
    }
    std::string operator()(const Und& und) const { return geklammert(und.teile, " And "); }
    std::string operator()(const Oder& oder) const { return geklammert(oder.teile, " Or "); }
    std::string operator()(const Nicht& nicht) const { return "Not " + std::visit(*this, nicht.teil->inhalt); }

    std::string geklammert(const std::vector<AusdruckZeiger>& teile, std::string_view wort) const
    {
        return "(" + verbunden(teile, wort, [&](const auto& teil) { return std::visit(*this, teil->inhalt); }) + ")";
    }
};

std::string where(const AusdruckZeiger& bedingung)
{
    return bedingung ? " Where " + alsAccessText(*bedingung) : "";
}

struct Anweisungstext
{
    std::string operator()(const Select& select) const
    {
        const std::string spalten = select.anzahl            ? "Count(*)"
                                    : select.spalten.empty() ? "*"
                                                             : verbunden(select.spalten, ", ", accessName);
        const std::string sortiert = verbunden(select.orderBy, ", ", [](const Sortierung& s) {
            return accessName(s.spalte) + (s.absteigend ? " Desc" : "");
        });
        return fmt::format("Select {}{} From {}{}{}{}", select.distinct ? "Distinct " : "", spalten,
                           accessName(select.tabelle), where(select.where), sortiert.empty() ? "" : " Order By ",
                           sortiert);
    }
    std::string operator()(const Insert& insert) const
    {
        return fmt::format("Insert Into {} ({}) Values ({})", accessName(insert.tabelle),
                           verbunden(insert.werte, ", ", [](const Zuweisung& z) { return accessName(z.spalte); }),
                           verbunden(insert.werte, ", ", [](const Zuweisung& z) { return accessLiteral(z.wert); }));
    }
    std::string operator()(const Update& update) const
    {
        const std::string werte = verbunden(update.werte, ", ", [](const Zuweisung& z) {
            return fmt::format("{} = {}", accessName(z.spalte), accessLiteral(z.wert));
        });
        return fmt::format("Update {} Set {}{}", accessName(update.tabelle), werte, where(update.where));
    }
    std::string operator()(const Delete& loeschen) const
    {
        return fmt::format("Delete From {}{}", accessName(loeschen.tabelle), where(loeschen.where));
    }
};

} // namespace

std::string accessName(std::string_view name)
{
    return fmt::format("[{}]", name);
}

std::string accessLiteral(const Value& wert)
{
    return std::visit(Literal{}, wert);
}

std::string alsAccessText(const Anweisung& anweisung)
{
    return std::visit(Anweisungstext{}, anweisung);
}

std::string alsAccessText(const Ausdruck& bedingung)
{
    return std::visit(Bedingungstext{}, bedingung.inhalt);
}

} // namespace quelvarn::sql
