#include "database/column.h"

#include "base/collation.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <optional>

namespace quelvarn {

Value TextColumn::wert(Zeilennummer zeile) const
{
    const Textcode code = codes_[zeile];
    return code == 0 ? Value{} : Value{std::string(texte_.text(code))};
}

Textcode TextColumn::codeVon(const Value& wert)
{
    if (quelvarn::istNull(wert))
        return 0;
    const auto* text = std::get_if<std::string>(&wert);
    return texte_.codeVon(text ? *text : alsText(wert));
}

void TextColumn::setze(Zeilennummer zeile, const Value& wert)
{
    codes_[zeile] = codeVon(wert);
}

void TextColumn::haengeAn(const Value& wert)
{
    codes_.push_back(codeVon(wert));
}

void TextColumn::schliesseAb()
{
    texte_.schliesseAb();
    codes_.shrink_to_fit();
}

std::vector<std::int64_t> TextColumn::ordnungswerte() const
{
    std::vector<std::string> schluessel(texte_.anzahl());
    for (Textcode code = 1; code < schluessel.size(); ++code)
        schluessel[code] = sortKey(texte_.text(code));
    std::vector<Textcode> reihe(texte_.anzahl());
    std::iota(reihe.begin(), reihe.end(), Textcode{0});
    std::sort(reihe.begin() + 1, reihe.end(),
              [&](Textcode links, Textcode rechts) { return schluessel[links] < schluessel[rechts]; });
    std::vector<std::int64_t> rang(reihe.size(), 0);
    for (std::size_t i = 1; i < reihe.size(); ++i) {
        const bool gleich = i > 1 && schluessel[reihe[i]] == schluessel[reihe[i - 1]];
        rang[reihe[i]] = gleich ? rang[reihe[i - 1]] : static_cast<std::int64_t>(i);
    }
    std::vector<std::int64_t> werte(codes_.size());
    std::transform(codes_.begin(), codes_.end(), werte.begin(), [&](Textcode code) { return rang[code]; });
    return werte;
}

std::size_t TextColumn::speicher() const
{
    return codes_.capacity() * sizeof(Textcode) + texte_.speicher();
}

namespace {

// The cell as the column keeps it; nothing when it is of another kind.
std::optional<std::int64_t> alsZelle(const Value& wert, FeldTyp typ, std::int64_t)
{
    if (typ == FeldTyp::Datum) {
        const auto* zeit = std::get_if<Zeitpunkt>(&wert);
        return zeit ? std::optional(zeit->sekunden) : std::nullopt;
    }
    if (const auto* ganz = std::get_if<std::int64_t>(&wert))
        return *ganz;
    return std::nullopt;
}

std::optional<double> alsZelle(const Value& wert, FeldTyp, double)
{
    if (const auto* zahl = std::get_if<double>(&wert))
        return *zahl;
    if (const auto* ganz = std::get_if<std::int64_t>(&wert))
        return static_cast<double>(*ganz);
    return std::nullopt;
}

std::int64_t ordnungswertVon(std::int64_t zahl)
{
    return zahl;
}

// The bits of doubles, taken as whole numbers, are in order once those of negative ones are turned round.
std::int64_t ordnungswertVon(double zahl)
{
    if (zahl == 0)
        return 0;
    const auto bits = std::bit_cast<std::int64_t>(zahl);
    return bits >= 0 ? bits : std::numeric_limits<std::int64_t>::min() - bits;
}

} // namespace

template <class Zahl> bool NumberColumn<Zahl>::istNull(Zeilennummer zeile) const
{
    return istLeer(zahlen_[zeile]) && !fremde_.contains(zeile);
}

template <class Zahl> Value NumberColumn<Zahl>::wert(Zeilennummer zeile) const
{
    const Zahl zahl = zahlen_[zeile];
    if (istLeer(zahl)) {
        const auto fremder = fremde_.find(zeile);
        return fremder == fremde_.end() ? Value{} : fremder->second;
    }
    if constexpr (std::is_same_v<Zahl, std::int64_t>) {
        if (typ() == FeldTyp::Datum)
            return Zeitpunkt{zahl};
    }
    return zahl;
}

template <class Zahl> void NumberColumn<Zahl>::setze(Zeilennummer zeile, const Value& wert)
{
    const auto zelle = alsZelle(wert, typ(), Zahl{});
    zahlen_[zeile] = zelle.value_or(LEER);
    if (!zelle && !quelvarn::istNull(wert))
        fremde_[zeile] = wert;
    else if (!fremde_.empty())
        fremde_.erase(zeile);
}

template <class Zahl> void NumberColumn<Zahl>::haengeAn(const Value& wert)
{
    zahlen_.push_back(LEER);
    setze(static_cast<Zeilennummer>(zahlen_.size() - 1), wert);
}

template <class Zahl> std::vector<std::int64_t> NumberColumn<Zahl>::ordnungswerte() const
{
    std::vector<std::int64_t> werte(zahlen_.size());
    std::transform(zahlen_.begin(), zahlen_.end(), werte.begin(), [](Zahl zahl) {
        return istLeer(zahl) ? std::numeric_limits<std::int64_t>::min() : ordnungswertVon(zahl);
    });
    for (const auto& [zeile, wert] : fremde_)
        werte[zeile] = std::numeric_limits<std::int64_t>::max();
    return werte;
}

template <class Zahl> std::size_t NumberColumn<Zahl>::speicher() const
{
    return zahlen_.capacity() * sizeof(Zahl) + fremde_.size() * (sizeof(Value) + 32);
}

template class NumberColumn<std::int64_t>;
template class NumberColumn<double>;

std::unique_ptr<Column> neueSpalte(FeldTyp typ)
{
    switch (typ) {
    case FeldTyp::Text:
        return std::make_unique<TextColumn>();
    case FeldTyp::Gleitkomma:
        return std::make_unique<NumberColumn<double>>(typ);
    case FeldTyp::Ganzzahl:
    case FeldTyp::Datum:
        break;
    }
    return std::make_unique<NumberColumn<std::int64_t>>(typ);
}

std::unique_ptr<Column> neueSortierteSpalte(FeldTyp typ)
{
    if (typ == FeldTyp::Text)
        return std::make_unique<TextColumn>(Textvorrat::Suche::Nachbar);
    return neueSpalte(typ);
}

} // namespace quelvarn
