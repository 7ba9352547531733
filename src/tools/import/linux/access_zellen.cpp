#include "tools/import/linux/access_zellen.h"

#include "tools/import/linux/jet_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <memory>

namespace quelvarn::tools {

namespace {

constexpr std::uint32_t MEMO_LAENGE = 0x3fffffff;
constexpr std::uint32_t MEMO_IN_DER_ZEILE = 0x80000000;
constexpr std::uint32_t MEMO_AUF_EINER_SEITE = 0x40000000;

template <typename Zahl> Zahl zahlAus(const void* bytes)
{
    Zahl zahl;
    std::memcpy(&zahl, bytes, sizeof zahl);
    return zahl;
}

// 0.1 as single precision is to read 0.1, not 0.10000000149.
double alsDouble(float zahl)
{
    std::array<char, 32> text;
    const auto ende = std::to_chars(text.data(), text.data() + text.size(), zahl).ptr;
    double ergebnis = zahl;
    std::from_chars(text.data(), ende, ergebnis);
    return ergebnis;
}

int kleinste(int typ) // bytes
{
    switch (typ) {
    case MDB_BYTE:
        return 1;
    case MDB_INT:
        return 2;
    case MDB_LONGINT:
    case MDB_FLOAT:
        return 4;
    case MDB_MONEY:
    case MDB_DOUBLE:
    case MDB_DATETIME:
        return 8;
    case MDB_NUMERIC:
        return 17;
    default:
        return 0;
    }
}

} // namespace

Spaltenart spaltenart(int typ)
{
    switch (typ) {
    case MDB_BOOL:
    case MDB_BYTE:
    case MDB_INT:
    case MDB_LONGINT:
        return Spaltenart::Ganzzahl;
    case MDB_MONEY:
    case MDB_FLOAT:
    case MDB_DOUBLE:
    case MDB_NUMERIC:
        return Spaltenart::Gleitkomma;
    case MDB_DATETIME:
        return Spaltenart::Datum;
    case MDB_TEXT:
    case MDB_MEMO:
        return Spaltenart::Text;
    default:
        return Spaltenart::Fremd;
    }
}

void Zellenleser::zelle(const MdbColumn& spalte, const MdbField& feld, Packer& ziel)
{
    if (spalte.col_type == MDB_BOOL) // The mark for Null is the value.
        return ziel.ganzzahl(feld.is_null ? 0 : -1);
    if (feld.is_null)
        return ziel.zelle(Zellart::Null);
    if (feld.siz < kleinste(spalte.col_type))
        return ziel.zelle(Zellart::Unlesbar);
    if (spalte.col_type == MDB_TEXT)
        return text({static_cast<const char*>(feld.value), static_cast<std::size_t>(feld.siz)}, ziel);
    if (spalte.col_type == MDB_MEMO)
        return memo({static_cast<const char*>(feld.value), static_cast<std::size_t>(feld.siz)}, ziel);
    zahl(spalte, feld, ziel);
}

void Zellenleser::zahl(const MdbColumn& spalte, const MdbField& feld, Packer& ziel)
{
    switch (spalte.col_type) {
    case MDB_BYTE:
        return ziel.ganzzahl(zahlAus<std::uint8_t>(feld.value));
    case MDB_INT:
        return ziel.ganzzahl(zahlAus<std::int16_t>(feld.value));
    case MDB_LONGINT:
        return ziel.ganzzahl(zahlAus<std::int32_t>(feld.value));
    case MDB_MONEY:
        return ziel.gleitkomma(Zellart::Gleitkomma, static_cast<double>(zahlAus<std::int64_t>(feld.value)) / 10000.0);
    case MDB_FLOAT:
        return ziel.gleitkomma(Zellart::Gleitkomma, alsDouble(zahlAus<float>(feld.value)));
    case MDB_DOUBLE:
        return ziel.gleitkomma(Zellart::Gleitkomma, zahlAus<double>(feld.value));
    case MDB_DATETIME:
        return ziel.gleitkomma(Zellart::Datum, zahlAus<double>(feld.value));
    case MDB_NUMERIC:
        return dezimalzahl(spalte, feld, ziel);
    default:
        return ziel.zelle(Zellart::Fremd);
    }
}

void Zellenleser::dezimalzahl(const MdbColumn& spalte, const MdbField& feld, Packer& ziel)
{
    const std::unique_ptr<char, decltype(&g_free)> text(
        mdb_numeric_to_string(&mdb_, feld.start, spalte.col_scale, spalte.col_prec), &g_free);
    double wert = 0;
    const std::string_view ziffern = text ? text.get() : "";
    if (std::from_chars(ziffern.data(), ziffern.data() + ziffern.size(), wert).ec != std::errc())
        return ziel.zelle(Zellart::Unlesbar);
    ziel.gleitkomma(Zellart::Gleitkomma, wert);
}

void Zellenleser::text(std::string_view bytes, Packer& ziel)
{
    if (IS_JET3((&mdb_)) && !bytes.empty()) {
        utf8_.resize(bytes.size() * 4 + 1); // The longest that a character of a code page can get.
        const int laenge = mdb_unicode2ascii(&mdb_, bytes.data(), bytes.size(), utf8_.data(), utf8_.size());
        utf8_.resize(static_cast<std::size_t>(std::max(0, laenge)));
    } else {
        dekodiereJet4(bytes, utf8_);
    }
    ziel.textzelle(utf8_);
}

// A memo stands in the row itself, on another page, or on a chain of pages.
void Zellenleser::memo(std::string_view feld, Packer& ziel)
{
    if (feld.empty())
        return ziel.textzelle({});
    if (feld.size() < MDB_MEMO_OVERHEAD)
        return ziel.zelle(Zellart::Unlesbar);
    const auto kopf = zahlAus<std::uint32_t>(feld.data());
    const std::size_t laenge = kopf & MEMO_LAENGE;
    if (laenge > TEXT_HOECHSTENS / 4) // UTF-8 may be longer than what is stored.
        return ziel.zelle(Zellart::Fremd);
    memo_.clear();
    if ((kopf & MEMO_IN_DER_ZEILE) != 0)
        memo_ = feld.substr(MDB_MEMO_OVERHEAD);
    else if (!liesMemoseiten(zahlAus<std::uint32_t>(feld.data() + 4), laenge, (kopf & MEMO_AUF_EINER_SEITE) != 0))
        return ziel.zelle(Zellart::Unlesbar);
    text(memo_, ziel);
}

bool Zellenleser::liesMemoseiten(std::uint32_t seiteUndZeile, std::size_t laenge, bool eineSeite)
{
    constexpr std::size_t VERWEIS = 4; // Each piece of a chain begins with where the next one is.
    while (memo_.size() < laenge) {
        void* seite = nullptr;
        int anfang = 0;
        size_t stueck = 0;
        if (seiteUndZeile == 0 ||
            mdb_find_pg_row(&mdb_, static_cast<int>(seiteUndZeile), &seite, &anfang, &stueck) != 0)
            return false;
        const char* daten = static_cast<const char*>(seite) + anfang;
        if (eineSeite) {
            memo_.assign(daten, stueck);
            return memo_.size() >= laenge;
        }
        if (stueck <= VERWEIS)
            return false;
        seiteUndZeile = zahlAus<std::uint32_t>(daten);
        memo_.append(daten + VERWEIS, stueck - VERWEIS);
    }
    return true;
}

} // namespace quelvarn::tools
