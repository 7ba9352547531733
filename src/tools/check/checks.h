#pragma once

#include "tools/check/findings.h"
#include "tools/console.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quelvarn::tools {

enum class Indexe { Pruefen, Bauen };

// Pages and indexes, as far as the engine checks them itself.
void checkPages(Engine& engine, Befund& befund);
// Every cell of the register's tables can be read and is what its column says.
void checkCells(Engine& engine, Befund& befund, Verlaufsanzeige& anzeige);
// Tables, columns, their types, and indexes. Missing indexes are built when wanted.
void pruefeSchema(Engine& engine, Indexe indexe, Befund& befund);

// The keys of all documents, as numbers: which key is there is asked a million times.
class Dokumentschluessel
{
public:
    static std::uint64_t aus(std::string_view text);
    static std::uint64_t aus(std::string_view dokuBez, std::string_view revBez);

    std::vector<std::uint64_t> dateien;                  // of all document tables
    std::array<std::vector<std::uint64_t>, 8> dokumente; // of each
    void sortiere();
    static bool enthaelt(const std::vector<std::uint64_t>& sortierte, std::uint64_t schluessel);
};

// Documents without a key, with a status that is none, or twice there. Gathers the keys.
void pruefeDokumente(Engine& engine, Befund& befund, Verlaufsanzeige& anzeige, Dokumentschluessel& schluessel);
// Rows that belong to a document which is in no table.
void pruefeVerbindungen(Engine& engine, Befund& befund, Verlaufsanzeige& anzeige, const Dokumentschluessel& schluessel);
// Rows of the table Ini that a start complains of or mends.
void pruefeIni(Engine& engine, Befund& befund);
// Documents whose file is missing, under the drives of this computer.
void pruefeDateien(Engine& engine, Befund& befund, Verlaufsanzeige& anzeige);

} // namespace quelvarn::tools
