#include "database/sql/renderer.h"

#include "base/collation.h"
#include "base/like_pattern.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "base/utf8.h"
#include "database/sql/column_value.h"
#include "database/sql/comparison_signs.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <fmt/format.h>
#include <limits>

namespace quelvarn::sql {
// Writes one statement, counting the placeholders as it goes.
class Schreiber
{
public:
    Schreiber(const Dialekt& dialekt, const Tabellenschema& tabelle) : dialekt_(dialekt), tabelle_(tabelle) {}

    const Spalte& spalte(std::string_view name) const
    {
        auto gefunden = std::ranges::find(tabelle_.spalten, name, &Spalte::name); // Nearly always spelled so.
        if (gefunden == tabelle_.spalten.end())
            gefunden = std::ranges::find_if(tabelle_.spalten,
                                            [&](const Spalte& spalte) { return equalText(spalte.name, name); });
        if (gefunden == tabelle_.spalten.end())
            throw Laufzeitfehler(
                FEHLER_FELD_FEHLT, "Datenbank",
                fmt::format("Feld '{}' ist in der Tabelle '{}' nicht vorhanden.", name, tabelle_.name));
        return *gefunden;
    }

    std::string name(const Spalte& spalte) const { return dialekt_.name(spalte.name); }
    std::string tabelle() const { return dialekt_.name(tabelle_.name); }

    std::string parameter(Value wert, FeldTyp typ)
    {
        if (auto literal = dialekt_.alsLiteral(wert))
            return *std::move(literal);
        if (const auto* zeit = std::get_if<Zeitpunkt>(&wert))
            wert = dialekt_.datumswert(*zeit);
        ergebnis_.parameter.push_back(std::move(wert));
        return dialekt_.platzhalter(ergebnis_.parameter.size(), ergebnis_.parameter.back(), typ);
    }

    // Names of the columns of the result; all of them when none is named.
    std::string auswahl(std::span<const std::string> namen)
    {
        if (namen.empty())
            ergebnis_.spalten = tabelle_.spalten;
        for (const std::string& name : namen)
            ergebnis_.spalten.push_back(spalte(name));
        std::vector<std::string> texte;
        for (const Spalte& spalte : ergebnis_.spalten)
            texte.push_back(name(spalte));
        return join(texte, ", ");
    }

    std::string rest()
    {
        std::string text;
        for (const Spalte& andere : tabelle_.spalten) {
            if (std::ranges::find(ergebnis_.spalten, andere) != ergebnis_.spalten.end())
                continue;
            ergebnis_.rest.push_back(andere);
            text += ", " + name(andere);
        }
        return text;
    }

    std::string where(const AusdruckZeiger& bedingung)
    {
        return bedingung ? " WHERE " + std::visit(*this, bedingung->inhalt) : "";
    }

    std::string zeile(Zeilenschluessel schluessel)
    {
        return fmt::format(" WHERE {} = {}", dialekt_.schluesselspalte(), parameter(schluessel, FeldTyp::Ganzzahl));
    }

    std::string zeile(Dialekt::Zeilenbild bild)
    {
        std::vector<std::string> texte;
        for (const Zuweisung& zelle : bild)
            texte.push_back(genau(spalte(zelle.spalte), zelle.wert));
        return " WHERE " + join(texte, " AND ");
    }

    std::string sortierung(const std::vector<Sortierung>& sortierungen) const
    {
        std::vector<std::string> texte;
        for (const Sortierung& sortierung : sortierungen) {
            const Spalte& gemeint = spalte(sortierung.spalte);
            const std::string ausdruck = name(gemeint);
            texte.push_back(
                dialekt_.sortiert(gemeint.typ == FeldTyp::Text ? dialekt_.vergleichsausdruck(ausdruck) : ausdruck,
                                  sortierung.absteigend));
        }
        return texte.empty() ? "" : " ORDER BY " + join(texte, ", ");
    }

    std::string wert(const Zuweisung& zuweisung)
    {
        const FeldTyp typ = spalte(zuweisung.spalte).typ;
        return parameter(speicherwert(zuweisung.wert, typ), typ);
    }

    std::string operator()(const Bedingung& bedingung)
    {
        const Spalte& gemeint = spalte(bedingung.spalte);
        if (bedingung.vergleich == Vergleich::Like)
            return like(gemeint, std::get<std::string>(bedingung.wert), bedingung.wildcards);
        if (bedingung.vergleich == Vergleich::NotLike)
            return "NOT (" + muster(gemeint, std::get<std::string>(bedingung.wert), bedingung.wildcards) + ")";

        const auto literal = vergleichswert(bedingung.wert, gemeint.typ);
        if (!literal)
            return std::string(dialekt_.niemals());
        if (gemeint.typ == FeldTyp::Text)
            return textvergleich(name(gemeint), zeichenOf(bedingung.vergleich), std::get<std::string>(*literal));
        return fmt::format("{} {} {}", name(gemeint), zeichenOf(bedingung.vergleich), parameter(*literal, gemeint.typ));
    }

    std::string operator()(const IstNull& istNull) const
    {
        return name(spalte(istNull.spalte)) + (istNull.verneint ? " IS NOT NULL" : " IS NULL");
    }

    std::string operator()(const Und& und) { return verbunden(und.teile, " AND "); }
    std::string operator()(const Oder& oder) { return verbunden(oder.teile, " OR "); }
    std::string operator()(const Nicht& nicht) { return "NOT (" + std::visit(*this, nicht.teil->inhalt) + ")"; }

    Gerendert fertig(std::string text)
    {
        ergebnis_.text = std::move(text);
        return std::move(ergebnis_);
    }
    Gerendert& ergebnis() { return ergebnis_; }

private:
    std::string genau(const Spalte& spalte, const Value& wert)
    {
        if (istNull(wert))
            return name(spalte) + " IS NULL";
        if (const auto* text = std::get_if<std::string>(&wert); text && spalte.typ == FeldTyp::Text)
            return dialekt_.genauGleich(name(spalte), parameter(*text, FeldTyp::Text));
        if (const auto* zahl = std::get_if<double>(&wert)) {
            constexpr double groesste = std::numeric_limits<double>::max();
            const double spielraum = std::abs(*zahl) * 1e-14;
            return bereich(spalte, std::max(*zahl - spielraum, -groesste), std::min(*zahl + spielraum, groesste));
        }
        if (const auto* zeit = std::get_if<Zeitpunkt>(&wert)) {
            static const Zeitpunkt erste = Zeitpunkt::aus({100, 1, 1});
            static const Zeitpunkt letzte = Zeitpunkt::aus({9999, 12, 31, 23, 59, 59});
            return bereich(spalte, std::max(zeit->plusSekunden(-1), erste), std::min(zeit->plusSekunden(1), letzte));
        }
        return fmt::format("{} = {}", name(spalte), parameter(wert, spalte.typ));
    }

    std::string bereich(const Spalte& spalte, const Value& von, const Value& bis)
    {
        const std::string unten = parameter(von, spalte.typ);
        return fmt::format("({} BETWEEN {} AND {})", name(spalte), unten, parameter(bis, spalte.typ));
    }

    std::string verbunden(const std::vector<AusdruckZeiger>& teile, std::string_view wort)
    {
        std::vector<std::string> texte;
        for (const AusdruckZeiger& teil : teile)
            texte.push_back(std::visit(*this, teil->inhalt));
        return "(" + join(texte, wort) + ")";
    }

    std::string textvergleich(const std::string& name, std::string_view zeichen, const std::string& text)
    {
        return fmt::format("{} {} {}", dialekt_.vergleichsausdruck(name), zeichen,
                           parameter(dialekt_.vergleichstext(text), FeldTyp::Text));
    }

    // What a pattern begins with narrows the rows by an index, before each one is looked at.
    std::string like(const Spalte& spalte, const std::string& text, Wildcards wildcards)
    {
        const LikePattern gelesen(text, wildcards);
        const std::string anfang =
            gelesen.shape() == LikePattern::Shape::Exact || gelesen.shape() == LikePattern::Shape::Prefix
                ? gelesen.literal()
                : std::string();
        if (!dialekt_.engtMusterEin() || spalte.typ != FeldTyp::Text || trimRightBlanks(anfang).empty())
            return muster(spalte, text, wildcards);
        std::string enger;
        if (gelesen.shape() == LikePattern::Shape::Exact) {
            enger = textvergleich(name(spalte), "=", anfang);
        } else {
            enger = textvergleich(name(spalte), ">=", anfang);
            std::string dahinter = anfang;
            appendUtf8(dahinter, 0x10FFFF);
            enger += " AND " + textvergleich(name(spalte), "<", dahinter);
        }
        return "(" + enger + " AND " + muster(spalte, text, wildcards) + ")";
    }

    std::string muster(const Spalte& spalte, const std::string& text, Wildcards wildcards)
    {
        std::string ausdruck = name(spalte);
        if (spalte.typ != FeldTyp::Text)
            ausdruck = dialekt_.alsText(ausdruck, spalte.typ);
        // Patterns of blanks alone, which every list of choices has, need no matching.
        if (dialekt_.engtMusterEin() && trimRightBlanks(text).empty())
            return dialekt_.genauGleich(ausdruck, parameter(text, FeldTyp::Text));
        Dialekt::Mustervergleich vergleich = dialekt_.like(ausdruck, asSqlPattern(text, wildcards));
        return vergleich.davor + parameter(std::move(vergleich.muster), FeldTyp::Text) + vergleich.dahinter;
    }

    const Dialekt& dialekt_;
    const Tabellenschema& tabelle_;
    Gerendert ergebnis_;
};

namespace {

std::string zuweisungen(Schreiber& schreiber, std::span<const Zuweisung> werte)
{
    std::vector<std::string> texte;
    for (const Zuweisung& zuweisung : werte)
        texte.push_back(
            fmt::format("{} = {}", schreiber.name(schreiber.spalte(zuweisung.spalte)), schreiber.wert(zuweisung)));
    return join(texte, ", ");
}

// The rows of a DISTINCT have only the columns that were asked for.
void pruefeSortierung(const Select& anweisung, const std::vector<Spalte>& spalten)
{
    for (const Sortierung& sortierung : anweisung.orderBy) {
        const auto gleich = [&](const Spalte& spalte) { return equalText(spalte.name, sortierung.spalte); };
        if (anweisung.distinct && std::ranges::none_of(spalten, gleich))
            throw Laufzeitfehler(
                FEHLER_FELD_FEHLT, "Datenbank",
                fmt::format("Nach Feld '{}' kann nicht sortiert werden: Es steht nicht hinter DISTINCT.",
                            sortierung.spalte));
    }
}

} // namespace

std::string Dialekt::bezeichner(std::string_view name)
{
    return "\"" + replaceAll(name, "\"", "\"\"") + "\"";
}

std::string Dialekt::grenzeHinten(std::size_t grenze) const
{
    return fmt::format(" LIMIT {}", grenze);
}

Gerendert Dialekt::select(const Select& anweisung, const Tabellenschema& tabelle, MitSchluessel schluessel,
                          std::size_t grenze) const
{
    assert(schluessel == MitSchluessel::Nein || !(anweisung.distinct || anweisung.anzahl));
    Schreiber schreiber(*this, tabelle);
    const bool gruppiert = anweisung.distinct && gruppiertDistinct(anweisung);
    std::string text = "SELECT ";
    std::string auswahl;
    if (anweisung.anzahl) {
        schreiber.ergebnis().spalten = {{"Anzahl", FeldTyp::Ganzzahl}};
        text += "COUNT(*)";
    } else {
        auswahl = schreiber.auswahl(anweisung.spalten);
        text += anweisung.distinct && !gruppiert ? "DISTINCT " : "";
        text += grenze > 0 ? grenzeVorn(grenze) : "";
        const bool mitRest = schluessel == MitSchluessel::Ja && schluesselspalte().empty();
        text += schluessel == MitSchluessel::Ja && !mitRest ? std::string(schluesselspalte()) + ", " : "";
        text += auswahl + (mitRest ? schreiber.rest() : "");
        pruefeSortierung(anweisung, schreiber.ergebnis().spalten);
    }
    text += " FROM " + schreiber.tabelle() + schreiber.where(anweisung.where);
    text += gruppiert ? fmt::format(" GROUP BY {} ORDER BY MIN({})", auswahl, schluesselspalte()) : "";
    const bool hier = !anweisung.distinct || sortiertDistinct();
    schreiber.ergebnis().sortiertSelbst = hier || (anweisung.orderBy.empty() && grenze == 0);
    if (hier) {
        text += schreiber.sortierung(anweisung.orderBy);
        text += grenze > 0 ? grenzeHinten(grenze) : "";
    }
    return schreiber.fertig(std::move(text));
}

Gerendert Dialekt::aenderung(const Anweisung& anweisung, const Tabellenschema& tabelle) const
{
    if (const auto* insert = std::get_if<Insert>(&anweisung))
        return fuegeEin(tabelle, insert->werte);
    Schreiber schreiber(*this, tabelle);
    if (const auto* update = std::get_if<Update>(&anweisung)) {
        const std::string werte = zuweisungen(schreiber, update->werte);
        return schreiber.fertig(
            fmt::format("UPDATE {} SET {}{}", schreiber.tabelle(), werte, schreiber.where(update->where)));
    }
    const auto* loeschen = std::get_if<Delete>(&anweisung);
    assert(loeschen);
    return schreiber.fertig(fmt::format("DELETE FROM {}{}", schreiber.tabelle(), schreiber.where(loeschen->where)));
}

Gerendert Dialekt::fuegeEin(const Tabellenschema& tabelle, std::span<const Zuweisung> werte) const
{
    Schreiber schreiber(*this, tabelle);
    std::vector<std::string> namen;
    std::vector<std::string> texte;
    for (const Zuweisung& zuweisung : werte) {
        namen.push_back(schreiber.name(schreiber.spalte(zuweisung.spalte)));
        texte.push_back(schreiber.wert(zuweisung));
    }
    if (werte.empty())
        return schreiber.fertig(fmt::format("INSERT INTO {} DEFAULT VALUES", schreiber.tabelle()));
    return schreiber.fertig(
        fmt::format("INSERT INTO {} ({}) VALUES ({})", schreiber.tabelle(), join(namen, ", "), join(texte, ", ")));
}

Gerendert Dialekt::aendere(const Tabellenschema& tabelle, Zeilenschluessel zeile,
                           std::span<const Zuweisung> werte) const
{
    Schreiber schreiber(*this, tabelle);
    const std::string neu = zuweisungen(schreiber, werte);
    return schreiber.fertig(fmt::format("UPDATE {} SET {}{}", schreiber.tabelle(), neu, schreiber.zeile(zeile)));
}

Gerendert Dialekt::loesche(const Tabellenschema& tabelle, Zeilenschluessel zeile) const
{
    Schreiber schreiber(*this, tabelle);
    return schreiber.fertig(fmt::format("DELETE FROM {}{}", schreiber.tabelle(), schreiber.zeile(zeile)));
}

Gerendert Dialekt::leseZeile(const Tabellenschema& tabelle, Zeilenbild bild) const
{
    Schreiber schreiber(*this, tabelle);
    const std::string auswahl = schreiber.auswahl({});
    return schreiber.fertig(fmt::format("SELECT {} FROM {}{}", auswahl, schreiber.tabelle(), schreiber.zeile(bild)));
}

Gerendert Dialekt::zaehleZeile(const Tabellenschema& tabelle, Zeilenbild bild) const
{
    Schreiber schreiber(*this, tabelle);
    schreiber.ergebnis().spalten = {{"Anzahl", FeldTyp::Ganzzahl}};
    return schreiber.fertig(fmt::format("SELECT COUNT(*) FROM {}{}", schreiber.tabelle(), schreiber.zeile(bild)));
}

Gerendert Dialekt::aendereZeile(const Tabellenschema& tabelle, Zeilenbild bild, std::span<const Zuweisung> werte) const
{
    Schreiber schreiber(*this, tabelle);
    const std::string neu = zuweisungen(schreiber, werte);
    return schreiber.fertig(fmt::format("UPDATE {} SET {}{}", schreiber.tabelle(), neu, schreiber.zeile(bild)));
}

Gerendert Dialekt::loescheZeile(const Tabellenschema& tabelle, Zeilenbild bild) const
{
    Schreiber schreiber(*this, tabelle);
    return schreiber.fertig(fmt::format("DELETE FROM {}{}", schreiber.tabelle(), schreiber.zeile(bild)));
}

} // namespace quelvarn::sql
