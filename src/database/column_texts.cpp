#include "database/column_texts.h"

#include "base/collation.h"

#include <algorithm>
#include <cstring>

namespace quelvarn {

namespace {

constexpr std::size_t ERSTE_PLAETZE = 16;
// From this many distinct texts on the search must pay for itself.
constexpr std::size_t PROBE = 1 << 16;

std::uint32_t streuwertVon(std::string_view text)
{
    constexpr std::uint64_t FAKTOR = 0x9E3779B97F4A7C15ull;
    std::uint64_t wert = text.size() * FAKTOR;
    const char* stelle = text.data();
    std::size_t rest = text.size();
    for (; rest >= 8; rest -= 8, stelle += 8) {
        std::uint64_t wort;
        std::memcpy(&wort, stelle, 8);
        wert = (wert ^ wort) * FAKTOR;
        wert ^= wert >> 32;
    }
    std::uint64_t wort = 0;
    if (rest > 0)
        std::memcpy(&wort, stelle, rest);
    wert = (wert ^ wort) * FAKTOR;
    return static_cast<std::uint32_t>(wert >> 32);
}

constexpr std::size_t BLOCK = 64;

// Lower-cases ASCII letters only. True when the block holds anything beyond ASCII. The fixed length lets the
// compiler use vector instructions.
bool falteBlock(const char* __restrict quelle, char* __restrict ziel)
{
    unsigned char hoch = 0;
    for (std::size_t i = 0; i < BLOCK; ++i) {
        const auto zeichen = static_cast<unsigned char>(quelle[i]);
        const auto abstand = static_cast<unsigned char>(zeichen - 'A');
        ziel[i] = static_cast<char>(zeichen | (abstand < 26 ? 0x20 : 0));
        hoch |= zeichen;
    }
    return (hoch & 0x80) != 0;
}

// The first place from `ab` on that holds a byte beyond ASCII; bytes.size() when there is none.
std::size_t naechstesHohe(const std::string& bytes, std::size_t ab)
{
    while (ab + 8 <= bytes.size()) {
        std::uint64_t wort;
        std::memcpy(&wort, bytes.data() + ab, 8);
        if (wort & 0x8080808080808080ull)
            break;
        ab += 8;
    }
    while (ab < bytes.size() && (bytes[ab] & 0x80) == 0)
        ++ab;
    return ab;
}

} // namespace

Textcode Textvorrat::codeVon(std::string_view neu)
{
    if (letzter_ != 0 && text(letzter_) == neu)
        return letzter_;
    if (!sucht_)
        return letzter_ = haengeAn(neu);
    if (anzahl() * 2 >= plaetze_.size())
        vergroessere();
    const std::uint32_t streuwert = streuwertVon(neu);
    const std::size_t maske = plaetze_.size() - 1;
    std::size_t platz = streuwert & maske;
    for (; plaetze_[platz].code != 0; platz = (platz + 1) & maske) {
        if (plaetze_[platz].streuwert == streuwert && text(plaetze_[platz].code) == neu) {
            ++gefunden_;
            return letzter_ = plaetze_[platz].code;
        }
    }
    letzter_ = haengeAn(neu);
    plaetze_[platz] = {streuwert, letzter_};
    if (letzter_ % PROBE == 0 && !lohntSuche()) {
        sucht_ = false;
        plaetze_ = {};
    }
    return letzter_;
}

Textcode Textvorrat::haengeAn(std::string_view neu)
{
    bytes_.append(neu);
    anfaenge_.push_back(bytes_.size());
    return static_cast<Textcode>(anfaenge_.size() - 2);
}

bool Textvorrat::lohntSuche() const
{
    return gefunden_ * 4 >= anzahl();
}

void Textvorrat::vergroessere()
{
    std::vector<Platz> alte(std::max(ERSTE_PLAETZE, plaetze_.size() * 2));
    alte.swap(plaetze_);
    const std::size_t maske = plaetze_.size() - 1;
    for (const Platz& alter : alte) {
        if (alter.code == 0)
            continue;
        std::size_t platz = alter.streuwert & maske;
        while (plaetze_[platz].code != 0)
            platz = (platz + 1) & maske;
        plaetze_[platz] = alter;
    }
}

void Textvorrat::schliesseAb()
{
    sucht_ = false;
    plaetze_ = {};
    bytes_.shrink_to_fit();
    anfaenge_.shrink_to_fit();
}

std::size_t Textvorrat::speicher() const
{
    return bytes_.capacity() + anfaenge_.capacity() * sizeof(anfaenge_[0]) + plaetze_.capacity() * sizeof(Platz) +
           gefaltet_.bytes.capacity() + gefaltet_.andereLaenge.capacity() * sizeof(Textcode);
}

const Textvorrat::Gefaltet& Textvorrat::gefaltet() const
{
    if (gefaltet_.bis == anzahl())
        return gefaltet_;
    const std::size_t erstes = gefaltet_.bytes.size();
    if (falteAscii(erstes))
        falteAndere(erstes);
    gefaltet_.bis = static_cast<Textcode>(anzahl());
    return gefaltet_;
}

// True when there is more than ASCII from this place on.
bool Textvorrat::falteAscii(std::size_t stelle) const
{
    gefaltet_.bytes.resize(bytes_.size());
    bool andere = false;
    for (; stelle + BLOCK <= bytes_.size(); stelle += BLOCK)
        andere |= falteBlock(bytes_.data() + stelle, gefaltet_.bytes.data() + stelle);
    char quelle[BLOCK] = {};
    char ziel[BLOCK];
    const std::size_t rest = bytes_.size() - stelle;
    bytes_.copy(quelle, rest, stelle);
    andere |= falteBlock(quelle, ziel);
    std::copy_n(ziel, rest, gefaltet_.bytes.data() + stelle);
    return andere;
}

void Textvorrat::falteAndere(std::size_t stelle) const
{
    for (stelle = naechstesHohe(bytes_, stelle); stelle < bytes_.size();) {
        const auto naechster = std::upper_bound(anfaenge_.begin() + gefaltet_.bis, anfaenge_.end(), stelle);
        const auto code = static_cast<Textcode>(naechster - anfaenge_.begin() - 1);
        const std::string gefaltet = foldCase(text(code));
        if (gefaltet.size() == text(code).size())
            gefaltet.copy(gefaltet_.bytes.data() + anfaenge_[code], gefaltet.size());
        else
            gefaltet_.andereLaenge.push_back(code);
        stelle = naechstesHohe(bytes_, *naechster);
    }
}

} // namespace quelvarn
