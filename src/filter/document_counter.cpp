#include "filter/document_counter.h"

#include "base/collation.h"
#include "base/text.h"

#include <array>
#include <numeric>

namespace quelvarn {

namespace {

constexpr std::size_t ERSTE_PLAETZE = 1024;

constexpr unsigned char ASCII_ENDE = 0x80;
constexpr unsigned char LEERZEICHEN = 0x02; // Its weight; alone it would be cut.

std::array<unsigned char, ASCII_ENDE> asciiGewichte()
{
    std::array<unsigned char, ASCII_ENDE> gewichte{};
    for (unsigned char zeichen = 0; zeichen < ASCII_ENDE; ++zeichen) {
        const std::string schluessel = sortKey(std::string(1, static_cast<char>(zeichen)));
        gewichte[zeichen] = schluessel.empty() ? LEERZEICHEN : static_cast<unsigned char>(schluessel[0]);
    }
    return gewichte;
}

std::uint32_t mische(std::uint32_t wert, char byte)
{
    return (wert ^ static_cast<unsigned char>(byte)) * 16'777'619u;
}

// Equal texts give equal values: it is that of the sort key, which need not be built for plain texts.
std::uint32_t streuwertVon(std::string_view text)
{
    static const auto GEWICHTE = asciiGewichte();
    constexpr std::uint32_t ANFANG = 2'166'136'261u;
    std::uint32_t wert = ANFANG;
    for (const char zeichen : trimRightBlanks(text)) {
        const auto byte = static_cast<unsigned char>(zeichen);
        if (byte >= ASCII_ENDE) {
            const std::string schluessel = sortKey(text);
            return std::accumulate(schluessel.begin(), schluessel.end(), ANFANG, mische);
        }
        wert = mische(wert, static_cast<char>(GEWICHTE[byte]));
    }
    return wert;
}

std::uint32_t streuwertVon(std::string_view DokuBez, std::string_view RevBez)
{
    const std::uint32_t wert = streuwertVon(DokuBez) * 31 + streuwertVon(RevBez);
    return wert ^ (wert >> 15);
}

bool gleich(std::string_view links, std::string_view rechts)
{
    return links == rechts || equalText(links, rechts);
}

} // namespace

std::size_t Dokumentzaehler::platzVon(std::string_view DokuBez, std::string_view RevBez, std::uint32_t streuwert) const
{
    std::size_t platz = streuwert % plaetze_.size();
    while (plaetze_[platz].nummer != FREI) {
        const Nummer nummer = plaetze_[platz].nummer;
        if (plaetze_[platz].streuwert == streuwert && gleich(this->DokuBez(nummer), DokuBez) &&
            gleich(this->RevBez(nummer), RevBez))
            break;
        platz = (platz + 1) % plaetze_.size();
    }
    return platz;
}

void Dokumentzaehler::vergroessere()
{
    std::vector<Platz> alte(plaetze_.empty() ? ERSTE_PLAETZE : 2 * plaetze_.size());
    alte.swap(plaetze_);
    for (const Platz& alter : alte) {
        if (alter.nummer == FREI)
            continue;
        std::size_t platz = alter.streuwert % plaetze_.size();
        while (plaetze_[platz].nummer != FREI)
            platz = (platz + 1) % plaetze_.size();
        plaetze_[platz] = alter;
    }
}

void Dokumentzaehler::zaehle(std::string_view DokuBez, std::string_view RevBez)
{
    if (2 * anzahl() >= plaetze_.size())
        vergroessere();
    const std::uint32_t streuwert = streuwertVon(DokuBez, RevBez);
    Platz& platz = plaetze_[platzVon(DokuBez, RevBez, streuwert)];
    if (platz.nummer == FREI) {
        platz = {streuwert, static_cast<Nummer>(anzahl())};
        zaehler_.push_back(0);
        enden_.push_back((texte_ += DokuBez).size());
        enden_.push_back((texte_ += RevBez).size());
    }
    ++zaehler_[platz.nummer];
}

std::optional<Dokumentzaehler::Nummer> Dokumentzaehler::finde(std::string_view DokuBez, std::string_view RevBez)
{
    if (plaetze_.empty())
        return std::nullopt;
    const Platz& platz = plaetze_[platzVon(DokuBez, RevBez, streuwertVon(DokuBez, RevBez))];
    return platz.nummer == FREI ? std::nullopt : std::optional(platz.nummer);
}

} // namespace quelvarn
