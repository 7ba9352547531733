#pragma once

#include "database/odbc/api.h"
#include "database/schema.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace quelvarn::odbc {

class Verbindung;

// One statement that was run, and its rows.
class Anweisung
{
public:
    // Every value is bound as a text, which each driver takes for any column; Null as Null.
    static Anweisung fuehreAus(std::shared_ptr<Verbindung> verbindung, std::string_view sql,
                               std::span<const Value> parameter = {});
    static Anweisung tabellen(std::shared_ptr<Verbindung> verbindung);
    static Anweisung spalten(std::shared_ptr<Verbindung> verbindung, std::string_view tabelle);

    bool next();
    // Columns of a row are read from the left to the right, each once. The first is 0.
    Value zelle(std::size_t spalte, FeldTyp typ);
    std::string text(std::size_t spalte); // "" for Null
    std::int64_t betroffeneZeilen() const;

private:
    explicit Anweisung(std::shared_ptr<Verbindung> verbindung);
    bool holeText(std::size_t spalte, std::string& text);
    void pruefe(Ergebnis ergebnis) const;

    std::shared_ptr<Verbindung> verbindung_; // Outlives its statements.
    std::unique_ptr<Handle> handle_;
};

} // namespace quelvarn::odbc
