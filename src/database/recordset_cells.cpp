#include "database/recordset_cells.h"

#include <algorithm>

namespace quelvarn {

namespace {

constexpr std::size_t BLOCKZEILEN = 128;
constexpr std::size_t HOECHSTENS_VORAUS = 256;

} // namespace

Value Zellenpuffer::zelle(const Zeilenspeicher& zeilen, const Ansicht& ansicht, std::size_t position, std::size_t feld)
{
    if (const Value* wert = finde(position, feld))
        return *wert;
    if (std::find(gefragt_.begin(), gefragt_.end(), feld) == gefragt_.end())
        gefragt_.push_back(feld);
    std::erase_if(gefragt_, [&](std::size_t gefragt) { return zeilen.geladen(gefragt); });
    const std::size_t von = position - position % BLOCKZEILEN;
    lese(zeilen, ansicht, von, von + BLOCKZEILEN, gefragt_);
    return *finde(position, feld);
}

Value Zellenpuffer::zeilenwert(const Zeilenspeicher& zeilen, const Ansicht& ansicht, std::size_t position,
                               std::size_t feld)
{
    if (const Value* wert = finde(position, feld))
        return *wert;
    schritt_ = position == naechste_ ? std::min(schritt_ * 4, HOECHSTENS_VORAUS) : 1;
    std::vector<std::size_t> felder;
    for (std::size_t nummer = 0; nummer < zeilen.felder().size(); ++nummer)
        if (!zeilen.geladen(nummer))
            felder.push_back(nummer);
    lese(zeilen, ansicht, position, position + schritt_, std::move(felder));
    naechste_ = position + schritt_;
    return *finde(position, feld);
}

void Zellenpuffer::leere()
{
    bloecke_ = {};
}

const Value* Zellenpuffer::finde(std::size_t position, std::size_t feld)
{
    for (Block& block : bloecke_) {
        if (position < block.von || position >= block.bis)
            continue;
        const auto stelle = std::find(block.felder.begin(), block.felder.end(), feld);
        if (stelle == block.felder.end())
            continue;
        block.benutzt = ++uhr_;
        return &block.werte[(position - block.von) * block.felder.size() +
                            static_cast<std::size_t>(stelle - block.felder.begin())];
    }
    return nullptr;
}

void Zellenpuffer::lese(const Zeilenspeicher& zeilen, const Ansicht& ansicht, std::size_t von, std::size_t bis,
                        std::vector<std::size_t> felder)
{
    Block& block = *std::min_element(bloecke_.begin(), bloecke_.end(), [](const Block& links, const Block& rechts) {
        return links.benutzt < rechts.benutzt;
    });
    block = {};
    bis = std::min(bis, ansicht.anzahl());
    block.werte = zeilen.leseZellen(ansicht.ausschnitt(von, bis), felder);
    block.felder = std::move(felder);
    block.von = von;
    block.bis = bis;
}

} // namespace quelvarn
