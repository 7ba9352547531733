#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The binary form in which the reading process hands rows over. A message is its length (4 bytes), its kind
// (1 byte) and its content. Both ends run on the same machine, so numbers stand as they lie in memory.
namespace quelvarn::tools {

enum class Nachrichtenart : std::uint8_t {
    Katalog = 'K', // Tables with their columns; names of the tables that are left out.
    Tabelle = 'T', // The rows that follow belong to the table of this number.
    Zeilen = 'R',
    Ende = 'Z',   // Everything was read.
    Fehler = 'F', // A German sentence.
};

constexpr std::size_t NACHRICHT_HOECHSTENS = 96U << 20; // bytes; a longer one means that the sender went astray
constexpr std::size_t TEXT_HOECHSTENS = 64U << 20;      // of one cell

enum class Spaltenart : std::uint8_t { Ganzzahl, Gleitkomma, Text, Datum, Fremd };

struct Quellspalte
{
    std::string name;
    Spaltenart art = Spaltenart::Text;
};
struct Quelltabelle
{
    std::string name;
    std::vector<Quellspalte> spalten;
    std::uint32_t zeilen = 0; // As the file's own head of the table says.
};
struct Katalog
{
    std::vector<Quelltabelle> tabellen; // The wanted ones, in the order in which their rows come.
    std::vector<std::string> uebrige;   // Other tables of users, left out.
};

// `Fremd` is a value of a kind that a register cannot hold, `Unlesbar` one that the file has lost.
enum class Zellart : std::uint8_t { Null, Ganzzahl, Gleitkomma, Text, Datum, Fremd, Unlesbar };

struct Zelle
{
    Zellart art = Zellart::Null;
    std::int64_t ganzzahl = 0;
    double gleitkomma = 0; // Days for a date.
    std::string_view text;
};

// Writes numbers and texts one behind the other.
class Packer
{
public:
    void zahl8(std::uint8_t wert) { bytes_.push_back(static_cast<char>(wert)); }
    void zahl32(std::uint32_t wert) { roh(&wert, sizeof wert); }
    void text(std::string_view text);
    void katalog(const Katalog& katalog);

    void zelle(Zellart art) { zahl8(static_cast<std::uint8_t>(art)); }
    void ganzzahl(std::int64_t wert);
    void gleitkomma(Zellart art, double wert);
    void textzelle(std::string_view wert);

    const std::string& bytes() const { return bytes_; }
    void leere() { bytes_.clear(); }

private:
    void roh(const void* von, std::size_t laenge) { bytes_.append(static_cast<const char*>(von), laenge); }
    std::string bytes_;
};

// Reads them back. Throws Laufzeitfehler where the bytes end too early or make no sense.
class Entpacker
{
public:
    explicit Entpacker(std::string_view bytes) : rest_(bytes) {}
    bool leer() const { return rest_.empty(); }
    std::uint8_t zahl8();
    std::uint32_t zahl32();
    std::string_view text();
    Katalog katalog();
    Zelle zelle();

private:
    std::string_view nimm(std::size_t anzahl);
    template <typename Zahl> Zahl nimmZahl();
    std::string_view rest_;
};

} // namespace quelvarn::tools
