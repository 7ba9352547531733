#pragma once

#include "database/engine.h"
#include "database/sqlite/statement.h"

namespace quelvarn::sqlite {

// The rows of a prepared statement. Its first column is the row key when it has one.
class Leser final : public Zeilenleser
{
public:
    Leser(Statement statement, std::vector<Spalte> spalten, MitSchluessel schluessel);

    const std::vector<Spalte>& spalten() const override { return spalten_; }
    // Steps to the first row, so that a fault of the statement comes here.
    void begin();
    bool next() override;
    Zeilenschluessel schluessel() const override;
    bool istNull(std::size_t spalte) const override;
    std::string_view text(std::size_t spalte) const override;
    std::optional<std::string_view> findText(std::size_t spalte) const override;
    std::int64_t ganzzahl(std::size_t spalte) const override;
    double gleitkomma(std::size_t spalte) const override;
    Zeitpunkt datum(std::size_t spalte) const override;
    Value wert(std::size_t spalte) const override;

private:
    int stelle(std::size_t spalte) const { return static_cast<int>(spalte) + versatz_; }

    Statement statement_;
    sqlite3_stmt* roh_;
    std::vector<Spalte> spalten_;
    int versatz_; // 1 behind a row key
    bool zuEnde_ = false;
    bool aufErster_ = false; // begin() was there already.
};

} // namespace quelvarn::sqlite
