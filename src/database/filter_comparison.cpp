#include "database/filter_comparison.h"

#include "base/collation.h"
#include "database/column_search.h"
#include "database/sql/column_value.h"

#include <optional>

namespace quelvarn {

namespace {

using sql::Vergleich;

// True when a value in this order to the literal (below 0, 0, above 0) meets the comparison.
bool trifft(Vergleich vergleich, int ordnung)
{
    switch (vergleich) {
    case Vergleich::Gleich:
        return ordnung == 0;
    case Vergleich::Ungleich:
        return ordnung != 0;
    case Vergleich::Kleiner:
        return ordnung < 0;
    case Vergleich::KleinerGleich:
        return ordnung <= 0;
    case Vergleich::Groesser:
        return ordnung > 0;
    case Vergleich::GroesserGleich:
        return ordnung >= 0;
    case Vergleich::Like:
    case Vergleich::NotLike:
        break;
    }
    return false;
}

class Textauswahl : public Auswahl
{
public:
    explicit Textauswahl(std::unique_ptr<Texttreffer> treffer) : treffer_(std::move(treffer)) {}
    void behalte(std::vector<Zeilennummer>& zeilen) override { treffer_->behalte(zeilen); }
    bool nirgends() override { return treffer_->nirgends(); }

private:
    std::unique_ptr<Texttreffer> treffer_;
};

// Rows whose cell passes a test.
template <class Pruefung> class Zellauswahl : public Auswahl
{
public:
    explicit Zellauswahl(Pruefung pruefung) : pruefung_(std::move(pruefung)) {}
    void behalte(std::vector<Zeilennummer>& zeilen) override
    {
        std::size_t bleiben = 0;
        for (const Zeilennummer zeile : zeilen) {
            zeilen[bleiben] = zeile;
            bleiben += pruefung_(zeile);
        }
        zeilen.resize(bleiben);
    }

private:
    Pruefung pruefung_;
};

template <class Pruefung> std::unique_ptr<Auswahl> zellauswahl(Pruefung pruefung)
{
    return std::make_unique<Zellauswahl<Pruefung>>(std::move(pruefung));
}

// Null is LEER in the row of numbers: the smallest whole number, or a double that is unequal to itself.
template <class Zahl, class Literal>
std::unique_ptr<Auswahl> zahlauswahl(const NumberColumn<Zahl>& spalte, Vergleich vergleich, Literal literal)
{
    const Zahl* zahlen = spalte.zahlen().data();
    const auto belegt = [](Zahl zahl) { return !NumberColumn<Zahl>::istLeer(zahl); };
    switch (vergleich) {
    case Vergleich::Gleich:
        return zellauswahl([=](Zeilennummer zeile) { return belegt(zahlen[zeile]) & (zahlen[zeile] == literal); });
    case Vergleich::Ungleich:
        return zellauswahl([=](Zeilennummer zeile) { return belegt(zahlen[zeile]) & (zahlen[zeile] != literal); });
    case Vergleich::Kleiner:
        return zellauswahl([=](Zeilennummer zeile) { return belegt(zahlen[zeile]) & (zahlen[zeile] < literal); });
    case Vergleich::KleinerGleich:
        return zellauswahl([=](Zeilennummer zeile) { return belegt(zahlen[zeile]) & (zahlen[zeile] <= literal); });
    case Vergleich::Groesser:
        return zellauswahl([=](Zeilennummer zeile) { return belegt(zahlen[zeile]) & (zahlen[zeile] > literal); });
    default:
        return zellauswahl([=](Zeilennummer zeile) { return belegt(zahlen[zeile]) & (zahlen[zeile] >= literal); });
    }
}

// LIKE over numbers or dates looks at their text.
std::unique_ptr<Auswahl> likeUeberText(const Column& spalte, LikePattern muster, bool verneint)
{
    return zellauswahl([&spalte, muster = std::move(muster), verneint](Zeilennummer zeile) {
        return !spalte.istNull(zeile) && muster.matches(alsText(spalte.wert(zeile))) != verneint;
    });
}

// A column in which some cells are of another type than the column: cell by cell. A cell that cannot be compared
// with the literal does not meet the comparison.
std::unique_ptr<Auswahl> einzelauswahl(const Column& spalte, Vergleich vergleich, const Value& literal)
{
    return zellauswahl([&spalte, vergleich, literal](Zeilennummer zeile) {
        const Value zelle = spalte.wert(zeile);
        if (istNull(zelle) || zelle.index() == Value(std::string{}).index())
            return false;
        const double links = alsZahl(zelle);
        const double rechts = alsZahl(literal);
        return trifft(vergleich, links < rechts ? -1 : links > rechts ? 1 : 0);
    });
}

std::unique_ptr<Auswahl> textvergleich(const TextColumn& spalte, Vergleich vergleich, const std::string& text)
{
    if (vergleich == Vergleich::Gleich || vergleich == Vergleich::Ungleich)
        return std::make_unique<Textauswahl>(gleichTreffer(spalte, text, vergleich == Vergleich::Ungleich));
    return std::make_unique<Textauswahl>(pruefTreffer(
        spalte, [vergleich, text](std::string_view zelle) { return trifft(vergleich, compareText(zelle, text)); }));
}

std::unique_ptr<Auswahl> ganzzahlvergleich(const NumberColumn<std::int64_t>& spalte, Vergleich vergleich,
                                           const Value& literal)
{
    if (spalte.hatFremde())
        return einzelauswahl(spalte, vergleich, literal);
    if (const auto* zeit = std::get_if<Zeitpunkt>(&literal))
        return zahlauswahl(spalte, vergleich, zeit->sekunden);
    // A number keeps its fraction: nothing equals 1.5, and 1 is below it.
    if (const auto* zahl = std::get_if<double>(&literal))
        return zahlauswahl(spalte, vergleich, *zahl);
    return zahlauswahl(spalte, vergleich, std::get<std::int64_t>(literal));
}

std::unique_ptr<Auswahl> kommazahlvergleich(const NumberColumn<double>& spalte, Vergleich vergleich,
                                            const Value& literal)
{
    if (spalte.hatFremde())
        return einzelauswahl(spalte, vergleich, literal);
    return zahlauswahl(spalte, vergleich, alsZahl(literal));
}

std::unique_ptr<Auswahl> baueLike(const Column& spalte, const sql::Bedingung& bedingung)
{
    const bool verneint = bedingung.vergleich == Vergleich::NotLike;
    const std::string muster = alsText(bedingung.wert);
    if (spalte.typ() == FeldTyp::Text)
        return std::make_unique<Textauswahl>(
            likeTreffer(static_cast<const TextColumn&>(spalte), muster, bedingung.wildcards, verneint));
    return likeUeberText(spalte, LikePattern(muster, bedingung.wildcards), verneint);
}

} // namespace

std::unique_ptr<Auswahl> baueVergleich(const Column& spalte, const sql::Bedingung& bedingung)
{
    if (bedingung.vergleich == Vergleich::Like || bedingung.vergleich == Vergleich::NotLike)
        return baueLike(spalte, bedingung);
    const auto literal = istNull(bedingung.wert) ? std::nullopt : sql::vergleichswert(bedingung.wert, spalte.typ());
    if (!literal)
        return zellauswahl([](Zeilennummer) { return false; });
    if (spalte.typ() == FeldTyp::Text)
        return textvergleich(static_cast<const TextColumn&>(spalte), bedingung.vergleich,
                             std::get<std::string>(*literal));
    if (spalte.typ() == FeldTyp::Gleitkomma)
        return kommazahlvergleich(static_cast<const NumberColumn<double>&>(spalte), bedingung.vergleich, *literal);
    return ganzzahlvergleich(static_cast<const NumberColumn<std::int64_t>&>(spalte), bedingung.vergleich, *literal);
}

std::unique_ptr<Auswahl> baueNullpruefung(const Column& spalte, bool verneint)
{
    return zellauswahl([&spalte, verneint](Zeilennummer zeile) { return spalte.istNull(zeile) != verneint; });
}

Vergleich gegenteil(Vergleich vergleich)
{
    switch (vergleich) {
    case Vergleich::Gleich:
        return Vergleich::Ungleich;
    case Vergleich::Ungleich:
        return Vergleich::Gleich;
    case Vergleich::Kleiner:
        return Vergleich::GroesserGleich;
    case Vergleich::KleinerGleich:
        return Vergleich::Groesser;
    case Vergleich::Groesser:
        return Vergleich::KleinerGleich;
    case Vergleich::GroesserGleich:
        return Vergleich::Kleiner;
    case Vergleich::Like:
        return Vergleich::NotLike;
    case Vergleich::NotLike:
        break;
    }
    return Vergleich::Like;
}

} // namespace quelvarn
