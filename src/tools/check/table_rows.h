#pragma once

#include "database/engine.h"

namespace quelvarn::tools {

// Rows of a whole table in portions, where the engine has row keys: between two portions others may write. A row that
// goes meanwhile is left out, one that comes is not met.
class TableRows final : public Zeilenleser
{
public:
    TableRows(Engine& engine, std::string table, std::vector<std::string> columns);

    const std::vector<Spalte>& spalten() const override { return portion_->spalten(); }
    bool next() override;
    Zeilenschluessel schluessel() const override { return portion_->schluessel(); }
    bool istNull(std::size_t spalte) const override { return portion_->istNull(spalte); }
    std::string_view text(std::size_t spalte) const override { return portion_->text(spalte); }
    std::int64_t ganzzahl(std::size_t spalte) const override { return portion_->ganzzahl(spalte); }
    double gleitkomma(std::size_t spalte) const override { return portion_->gleitkomma(spalte); }
    Zeitpunkt datum(std::size_t spalte) const override { return portion_->datum(spalte); }
    Value wert(std::size_t spalte) const override { return portion_->wert(spalte); }

private:
    void readPortion();

    Engine& engine_;
    std::string table_;
    std::vector<std::string> columns_;
    std::vector<Zeilenschluessel> keys_;
    std::size_t read_ = 0; // Of the keys.
    std::unique_ptr<Zeilenleser> portion_;
};

} // namespace quelvarn::tools
