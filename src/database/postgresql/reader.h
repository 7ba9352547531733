#pragma once

#include "database/engine.h"
#include "database/postgresql/handle.h"

#include <deque>
#include <exception>

namespace quelvarn::postgresql {

// The rows of a statement as the server sends them, one by one. Its first column is the row key when it has one.
class Leser final : public Zeilenleser
{
public:
    Leser(std::shared_ptr<Handle> handle, const std::string& sql, std::span<const Value> parameter,
          std::vector<Spalte> spalten, MitSchluessel schluessel);
    ~Leser() override;

    const std::vector<Spalte>& spalten() const override { return spalten_; }
    bool next() override;
    Zeilenschluessel schluessel() const override;
    bool istNull(std::size_t spalte) const override;
    std::string_view text(std::size_t spalte) const override;
    std::int64_t ganzzahl(std::size_t spalte) const override;
    double gleitkomma(std::size_t spalte) const override;
    Zeitpunkt datum(std::size_t spalte) const override;
    Value wert(std::size_t spalte) const override;

    // Takes the other rows into memory: the connection is wanted for another statement. A fault meanwhile is that of
    // this reader alone, and told behind the rows that came before it.
    void holeRest() noexcept;

private:
    Ergebnis holeZeile();
    Ergebnis nimm(Ergebnis stueck);

    std::shared_ptr<Handle> handle_;
    std::vector<Spalte> spalten_;
    int versatz_; // 1 behind a row key
    bool amServer_ = true;
    Ergebnis zeile_;
    std::deque<Ergebnis> rest_;
    std::exception_ptr fehler_; // Rows are missing.
};

} // namespace quelvarn::postgresql
