#include "database/odbc/row_book.h"

#include <cassert>
#include <cstring>

namespace quelvarn::odbc {
namespace {

template <class Zahl> void schreibe(std::string& bild, Zahl zahl)
{
    char bytes[sizeof zahl];
    std::memcpy(bytes, &zahl, sizeof zahl);
    bild.append(bytes, sizeof zahl);
}

template <class Zahl> Zahl lies(std::string_view& bild)
{
    Zahl zahl;
    assert(bild.size() >= sizeof zahl);
    std::memcpy(&zahl, bild.data(), sizeof zahl);
    bild.remove_prefix(sizeof zahl);
    return zahl;
}

// What a cell holds stands in front of it.
constexpr char Nichts = 'N', Ganz = 'G', Zahl = 'Z', Text = 'T', Zeit = 'D';

struct Schreiber
{
    std::string& bild;

    void operator()(std::monostate) const { bild += Nichts; }
    void operator()(std::int64_t zahl) const { schreibe(bild += Ganz, zahl); }
    void operator()(double zahl) const { schreibe(bild += Zahl, zahl); }
    void operator()(const std::string& text) const
    {
        schreibe(bild += Text, text.size());
        bild += text;
    }
    void operator()(Zeitpunkt zeit) const { schreibe(bild += Zeit, zeit.sekunden); }
};

Value liesZelle(std::string_view& bild)
{
    const char art = bild.front();
    bild.remove_prefix(1);
    switch (art) {
    case Ganz:
        return lies<std::int64_t>(bild);
    case Zahl:
        return lies<double>(bild);
    case Zeit:
        return Zeitpunkt{lies<std::int64_t>(bild)};
    case Text: {
        const auto laenge = lies<std::size_t>(bild);
        std::string text(bild.substr(0, laenge));
        bild.remove_prefix(laenge);
        return text;
    }
    default:
        return {};
    }
}

} // namespace

std::string Zeilenbuch::bildOf(std::span<const Value> zeile)
{
    std::string bild;
    for (const Value& zelle : zeile)
        std::visit(Schreiber{bild}, zelle);
    return bild;
}

std::vector<Value> Zeilenbuch::zeileOf(std::string_view bild)
{
    std::vector<Value> zeile;
    while (!bild.empty())
        zeile.push_back(liesZelle(bild));
    return zeile;
}

Zeilenschluessel Zeilenbuch::schluesselOf(const std::string& bild, std::size_t vorkommen)
{
    const auto eintrag = schluessel_.try_emplace(bild).first;
    std::vector<Zeilenschluessel>& gleiche = eintrag->second;
    while (gleiche.size() < vorkommen) {
        gleiche.push_back(++letzter_);
        bilder_.emplace(letzter_, &eintrag->first);
    }
    return gleiche[vorkommen - 1];
}

const std::string* Zeilenbuch::findBild(Zeilenschluessel schluessel) const
{
    const auto eintrag = bilder_.find(schluessel);
    return eintrag == bilder_.end() ? nullptr : eintrag->second;
}

void Zeilenbuch::ersetze(Zeilenschluessel schluessel, const std::string& neuesBild)
{
    const auto neu = schluessel_.try_emplace(neuesBild).first;
    entferne(schluessel);
    neu->second.push_back(schluessel);
    bilder_.emplace(schluessel, &neu->first);
}

void Zeilenbuch::entferne(Zeilenschluessel schluessel)
{
    const auto eintrag = bilder_.find(schluessel);
    if (eintrag == bilder_.end())
        return;
    std::erase(schluessel_.find(*eintrag->second)->second, schluessel);
    bilder_.erase(eintrag);
}

} // namespace quelvarn::odbc
