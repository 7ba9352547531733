#pragma once

#include "database/odbc/row_book.h"
#include "database/odbc/statement.h"

#include <optional>

namespace quelvarn::odbc {

// A reader whose current row lies in memory.
class Zeilentraeger : public Zeilenleser
{
public:
    explicit Zeilentraeger(std::vector<Spalte> spalten) : spalten_(std::move(spalten)) {}

    const std::vector<Spalte>& spalten() const override { return spalten_; }
    Zeilenschluessel schluessel() const override { return schluessel_; }
    bool istNull(std::size_t spalte) const override { return quelvarn::istNull(zeile_[spalte]); }
    std::string_view text(std::size_t spalte) const override;
    std::int64_t ganzzahl(std::size_t spalte) const override { return alsGanzzahl(zeile_[spalte]); }
    double gleitkomma(std::size_t spalte) const override { return alsZahl(zeile_[spalte]); }
    Zeitpunkt datum(std::size_t spalte) const override { return alsDatum(zeile_[spalte]); }
    Value wert(std::size_t spalte) const override { return zeile_[spalte]; }

protected:
    std::vector<Value> zeile_; // At least the columns of the reader.
    Zeilenschluessel schluessel_ = 0;

private:
    std::vector<Spalte> spalten_;
    mutable std::string text_;
};

// Which cell of a result holds which column of the table, to tell a row by all it holds.
struct Schluesselquelle
{
    std::shared_ptr<Zeilenbuch> buch;
    std::vector<std::size_t> stellen; // By the table's columns.
};

// The rows of a statement as the driver hands them out.
class Leser final : public Zeilentraeger
{
public:
    // `rest` are columns behind those of the reader. `grenze` rows at most when above 0.
    Leser(Anweisung anweisung, std::vector<Spalte> spalten, const std::vector<Spalte>& rest, std::size_t grenze,
          std::optional<Schluesselquelle> quelle);

    bool next() override;

private:
    void merkeSchluessel();

    Anweisung anweisung_;
    std::vector<FeldTyp> typen_;
    std::size_t uebrig_;
    std::optional<Schluesselquelle> quelle_;
    std::unordered_map<std::string, std::size_t> vorkommen_;
    bool zuEnde_ = false;
};

struct Schluesselzeile
{
    Zeilenschluessel schluessel;
    std::vector<Value> werte;
};

// Rows that were collected before.
class Listenleser final : public Zeilentraeger
{
public:
    Listenleser(std::vector<Spalte> spalten, std::vector<Schluesselzeile> zeilen)
        : Zeilentraeger(std::move(spalten)), zeilen_(std::move(zeilen))
    {}

    bool next() override;

private:
    std::vector<Schluesselzeile> zeilen_;
    std::size_t naechste_ = 0;
};

} // namespace quelvarn::odbc
