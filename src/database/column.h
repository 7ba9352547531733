#pragma once

#include "database/column_texts.h"
#include "database/value.h"

#include <limits>
#include <memory>
#include <unordered_map>
#include <vector>

namespace quelvarn {

// A row of a recordset in the order of its opening.
using Zeilennummer = std::uint32_t;

// One column of a recordset: the cells of all its rows.
class Column
{
public:
    explicit Column(FeldTyp typ) : typ_(typ) {}
    virtual ~Column() = default;
    FeldTyp typ() const { return typ_; }

    virtual std::size_t anzahl() const = 0;
    virtual bool istNull(Zeilennummer zeile) const = 0;
    virtual Value wert(Zeilennummer zeile) const = 0;
    virtual void setze(Zeilennummer zeile, const Value& wert) = 0;
    virtual void haengeAn(const Value& wert) = 0;
    // New rows are Null.
    virtual void setzeAnzahl(std::size_t zeilen) = 0;
    // Frees what only filling needs.
    virtual void schliesseAb() {}
    // For each row a number in the order of the values, Null first.
    virtual std::vector<std::int64_t> ordnungswerte() const = 0;
    virtual std::size_t speicher() const = 0;

private:
    FeldTyp typ_;
};

// Texts by their codes.
class TextColumn : public Column
{
public:
    explicit TextColumn(Textvorrat::Suche suche = Textvorrat::Suche::Alle) : Column(FeldTyp::Text), texte_(suche) {}

    std::size_t anzahl() const override { return codes_.size(); }
    bool istNull(Zeilennummer zeile) const override { return codes_[zeile] == 0; }
    Value wert(Zeilennummer zeile) const override;
    void setze(Zeilennummer zeile, const Value& wert) override;
    void haengeAn(const Value& wert) override;
    void setzeAnzahl(std::size_t zeilen) override { codes_.resize(zeilen); }
    void schliesseAb() override;
    std::vector<std::int64_t> ordnungswerte() const override;
    std::size_t speicher() const override;

    void haengeTextAn(std::string_view text) { codes_.push_back(texte_.codeVon(text)); }
    void haengeNullAn() { codes_.push_back(0); }
    // For filling in another order than that of the rows.
    Textcode neuerCode(std::string_view text) { return texte_.codeVon(text); }
    void setzeCode(Zeilennummer zeile, Textcode code) { codes_[zeile] = code; }
    const std::vector<Textcode>& codes() const { return codes_; }
    const Textvorrat& texte() const { return texte_; }

private:
    Textcode codeVon(const Value& wert);

    std::vector<Textcode> codes_;
    Textvorrat texte_;
};

// Numbers, or dates as their seconds. A cell of another kind (a text that stands in a number column) is kept as
// it is beside the row of numbers, where it counts as Null.
template <class Zahl> class NumberColumn : public Column
{
public:
    using Column::Column;
    static constexpr Zahl LEER = std::numeric_limits<Zahl>::has_quiet_NaN ? std::numeric_limits<Zahl>::quiet_NaN()
                                                                          : std::numeric_limits<Zahl>::min();
    static bool istLeer(Zahl zahl) { return std::numeric_limits<Zahl>::has_quiet_NaN ? zahl != zahl : zahl == LEER; }

    std::size_t anzahl() const override { return zahlen_.size(); }
    bool istNull(Zeilennummer zeile) const override;
    Value wert(Zeilennummer zeile) const override;
    void setze(Zeilennummer zeile, const Value& wert) override;
    void haengeAn(const Value& wert) override;
    void setzeAnzahl(std::size_t zeilen) override { zahlen_.resize(zeilen, LEER); }
    void schliesseAb() override { zahlen_.shrink_to_fit(); }
    std::vector<std::int64_t> ordnungswerte() const override;
    std::size_t speicher() const override;

    const std::vector<Zahl>& zahlen() const { return zahlen_; }
    bool hatFremde() const { return !fremde_.empty(); }

private:
    std::vector<Zahl> zahlen_;
    std::unordered_map<Zeilennummer, Value> fremde_;
};

extern template class NumberColumn<std::int64_t>;
extern template class NumberColumn<double>;

std::unique_ptr<Column> neueSpalte(FeldTyp typ);
// For a column whose values arrive in order.
std::unique_ptr<Column> neueSortierteSpalte(FeldTyp typ);

} // namespace quelvarn
