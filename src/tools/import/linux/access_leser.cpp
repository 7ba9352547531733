#include "tools/import/linux/access_leser.h"

#include "base/collation.h"
#include "tools/import/linux/access_zellen.h"
#include "tools/konsole.h"

#include <algorithm>
#include <fmt/format.h>
#include <mdbtools.h>
#include <memory>

namespace quelvarn::tools {

namespace {

constexpr std::size_t NACHRICHT_VOLL = 128U << 10; // bytes: rows go out in messages of about this length
constexpr unsigned long SEITE_DES_VERZEICHNISSES = 2;
constexpr int ZEILENANFANG = 0x1fff; // The bits above are flags.

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
