#include "tools/import/linux/access_reader.h"

#include "base/collation.h"
#include "tools/console.h"
#include "tools/import/linux/jet_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <fmt/format.h>
#include <mdbtools.h>
#include <memory>

namespace quelvarn::tools {

namespace {

constexpr std::size_t NACHRICHT_VOLL = 128U << 10; // bytes: rows go out in messages of about this length
constexpr unsigned long SEITE_DES_VERZEICHNISSES = 2;
constexpr int ZEILENANFANG = 0x1fff; // The bits above are flags.
constexpr std::uint32_t MEMO_LAENGE = 0x3fffffff;
constexpr std::uint32_t MEMO_IN_DER_ZEILE = 0x80000000;
constexpr std::uint32_t MEMO_AUF_EINER_SEITE = 0x40000000;

template <auto Freigabe> struct Freigeber
{
    template <typename T> void operator()(T* was) const { Freigabe(was); }
};
using Griff = std::unique_ptr<MdbHandle, Freigeber<mdb_close>>;
using Tabellendefinition = std::unique_ptr<MdbTableDef, Freigeber<mdb_free_tabledef>>;

Laufzeitfehler beschaedigt(const std::string& was)
{
    return werkzeugfehler(
        fmt::format("Die Access-Datei ist beschädigt: {} Lassen Sie sie in Access komprimieren und reparieren.", was));
}

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

// Turns the fields of a row, as libmdb finds them, into cells of a message.
class Zellenleser
{
public:
    explicit Zellenleser(MdbHandle& mdb) : mdb_(mdb) {}
    void zelle(const MdbColumn& spalte, const MdbField& feld, Packer& ziel);

private:
    void zahl(const MdbColumn& spalte, const MdbField& feld, Packer& ziel);
    void dezimalzahl(const MdbColumn& spalte, const MdbField& feld, Packer& ziel);
    void text(std::string_view bytes, Packer& ziel);
    void memo(std::string_view feld, Packer& ziel);
    bool liesMemoseiten(std::uint32_t seiteUndZeile, std::size_t laenge, bool eineSeite);

    MdbHandle& mdb_;
    std::string utf8_;
    std::string memo_;
};

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

std::int64_t dateigroesse(const MdbHandle& mdb)
{
    std::fseek(mdb.f->stream, 0, SEEK_END);
    return std::ftell(mdb.f->stream);
}

// The library takes a page behind the end of the file for the end of the table.
void pruefeSeiten(MdbHandle& mdb, const MdbTableDef& tabelle)
{
    const std::int64_t seiten = dateigroesse(mdb) / mdb.fmt->pg_size;
    gint32 seite = 0;
    do {
        seite = mdb_map_find_next(&mdb, tabelle.usage_map, static_cast<unsigned>(tabelle.map_sz),
                                  static_cast<guint32>(seite));
        if (seite < 0 || seite >= seiten) // Below 0: the list of its pages is on a page that is missing itself.
            throw werkzeugfehler(
                fmt::format("Die Access-Datei ist abgeschnitten: von der Tabelle {} fehlen Seiten.", tabelle.name));
    } while (seite > 0);
}

// Walks the rows of one table and sends them.
class Tabellenleser
{
public:
    Tabellenleser(MdbHandle& mdb, MdbTableDef& tabelle, Sender& sender)
        : mdb_(mdb), tabelle_(tabelle), sender_(sender), zellen_(mdb), felder_(tabelle.num_cols)
    {}

    void lies()
    {
        pruefeSeiten(mdb_, tabelle_);
        mdb_rewind_table(&tabelle_);
        const auto grenze = static_cast<std::uint64_t>(dateigroesse(mdb_));
        std::uint64_t zeilen = 0;
        while (mdb_fetch_row(&tabelle_) != 0) {
            zeile();
            // Each row takes more than a byte, so more rows than bytes means that pages go in a circle.
            if (++zeilen > grenze)
                throw beschaedigt(fmt::format("die Tabelle {} nimmt kein Ende.", tabelle_.name));
        }
        sende();
        if (zeilen < tabelle_.num_rows)
            throw beschaedigt(fmt::format("die Tabelle {} soll {} Zeilen haben, zu lesen sind nur {}.", tabelle_.name,
                                          tabelle_.num_rows, zeilen));
    }

private:
    void zeile()
    {
        int anfang = 0;
        size_t laenge = 0;
        if (mdb_find_row(&mdb_, static_cast<int>(tabelle_.cur_row) - 1, &anfang, &laenge) != 0)
            throw beschaedigt(fmt::format("eine Zeile der Tabelle {} ist nicht zu finden.", tabelle_.name));
        if (mdb_crack_row(&tabelle_, anfang & ZEILENANFANG, laenge, felder_.data()) < 0)
            throw beschaedigt(fmt::format("eine Zeile der Tabelle {} ist nicht zu lesen.", tabelle_.name));
        for (const MdbField& feld : felder_)
            zellen_.zelle(*static_cast<MdbColumn*>(g_ptr_array_index(tabelle_.columns, feld.colnum)), feld, paket_);
        if (paket_.bytes().size() >= NACHRICHT_VOLL)
            sende();
    }

    void sende()
    {
        if (!paket_.bytes().empty())
            sender_.sende(Nachrichtenart::Zeilen, paket_.bytes());
        paket_.leere();
    }

    MdbHandle& mdb_;
    MdbTableDef& tabelle_;
    Sender& sender_;
    Zellenleser zellen_;
    std::vector<MdbField> felder_;
    Packer paket_;
};

Quelltabelle beschreibung(const MdbTableDef& tabelle)
{
    Quelltabelle ergebnis{.name = tabelle.name, .spalten = {}, .zeilen = tabelle.num_rows};
    for (guint i = 0; i < tabelle.columns->len; ++i) {
        const auto& spalte = *static_cast<MdbColumn*>(g_ptr_array_index(tabelle.columns, i));
        ergebnis.spalten.push_back({spalte.name, spaltenart(spalte.col_type)});
    }
    return ergebnis;
}

// The catalog is a table itself, always at the same page. Read from a file cut short, it would just name fewer
// tables.
void pruefeVerzeichnis(MdbHandle& mdb)
{
    MdbCatalogEntry eintrag{};
    eintrag.mdb = &mdb;
    eintrag.object_type = MDB_TABLE;
    g_strlcpy(eintrag.object_name, "MSysObjects", sizeof eintrag.object_name);
    eintrag.table_pg = SEITE_DES_VERZEICHNISSES;
    const Tabellendefinition tabelle(mdb_read_table(&eintrag));
    if (!tabelle)
        throw beschaedigt("ihr Verzeichnis der Tabellen ist nicht zu lesen.");
    pruefeSeiten(mdb, *tabelle);
}

// Settings of the library in the environment would change what it reads.
Griff oeffne(const std::filesystem::path& datei)
{
    for (const char* name : {"MDBICONV", "MDBOPTS", "MDB_ICONV"})
        unsetenv(name);
    Griff mdb(mdb_open(datei.c_str(), MDB_NOFLAGS));
    if (!mdb)
        throw beschaedigt("ihr Kopf ist nicht zu lesen.");
    pruefeVerzeichnis(*mdb);
    if (mdb_read_catalog(mdb.get(), MDB_ANY) == nullptr)
        throw beschaedigt("ihr Verzeichnis der Tabellen ist nicht zu lesen.");
    return mdb;
}

// The definitions of the tables are put into `tabellen`, in the order of the catalog.
Katalog liesKatalog(MdbHandle& mdb, std::span<const std::string> gewuenscht, std::vector<Tabellendefinition>& tabellen)
{
    Katalog katalog;
    for (unsigned i = 0; i < mdb.num_catalog; ++i) {
        auto* eintrag = static_cast<MdbCatalogEntry*>(g_ptr_array_index(mdb.catalog, i));
        const bool verknuepft = eintrag->object_type == MDB_LINKED_TABLE;
        if (!verknuepft && mdb_is_user_table(eintrag) == 0)
            continue;
        const std::string name = eintrag->object_name;
        if (name.starts_with('~')) // Leavings of a table that is being deleted.
            continue;
        const bool gesucht = std::ranges::any_of(gewuenscht, [&](const auto& w) { return equalText(w, name); });
        if (!gesucht || verknuepft) {
            katalog.uebrige.push_back(verknuepft ? name + " (verknüpft)" : name);
            continue;
        }
        Tabellendefinition tabelle(mdb_read_table(eintrag));
        if (!tabelle || mdb_read_columns(tabelle.get()) == nullptr)
            throw beschaedigt(fmt::format("der Aufbau der Tabelle {} ist nicht zu lesen.", name));
        katalog.tabellen.push_back(beschreibung(*tabelle));
        tabellen.push_back(std::move(tabelle));
    }
    return katalog;
}

} // namespace

void liesAccessDatei(const std::filesystem::path& datei, std::span<const std::string> gewuenscht, Sender& sender)
{
    const Griff mdb = oeffne(datei);
    std::vector<Tabellendefinition> tabellen;
    Packer paket;
    paket.katalog(liesKatalog(*mdb, gewuenscht, tabellen));
    sender.sende(Nachrichtenart::Katalog, paket.bytes());
    for (std::size_t i = 0; i < tabellen.size(); ++i) {
        paket.leere();
        paket.zahl32(static_cast<std::uint32_t>(i));
        sender.sende(Nachrichtenart::Tabelle, paket.bytes());
        Tabellenleser(*mdb, *tabellen[i], sender).lies();
    }
}

} // namespace quelvarn::tools
