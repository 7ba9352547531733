#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// A text of a column by its number. 0 stands for Null.
using Textcode = std::uint32_t;

// The texts of one column in one run of bytes, each distinct text normally once. Code 0 is Null and holds no
// bytes. That a text stands here once saves room and time, but nothing relies on it: a column whose texts hardly
// ever repeat stops looking for known ones.
class Textvorrat
{
public:
    // How a text that came before is found again.
    enum class Suche {
        Alle,    // among all texts
        Nachbar, // only the one added last: for texts that arrive in order
    };
    explicit Textvorrat(Suche suche = Suche::Alle) : sucht_(suche == Suche::Alle) {}

    Textcode codeVon(std::string_view text);
    std::string_view text(Textcode code) const
    {
        return {bytes_.data() + anfaenge_[code], anfaenge_[code + 1] - anfaenge_[code]};
    }
    // Codes run from 0 to anzahl() - 1.
    std::size_t anzahl() const { return anfaenge_.size() - 1; }
    // No more texts, or only few, are to come: frees what only filling needs.
    void schliesseAb();
    std::size_t speicher() const;

    // The texts after foldCase, as bytes that share the offsets of the texts. A text whose length changes by
    // folding stands unfolded and is named in `andereLaenge`, in ascending order.
    struct Gefaltet
    {
        std::string bytes;
        std::vector<Textcode> andereLaenge;
        Textcode bis = 0;
    };
    const Gefaltet& gefaltet() const;
    std::string_view gefalteterText(Textcode code) const
    {
        return {gefaltet_.bytes.data() + anfaenge_[code], anfaenge_[code + 1] - anfaenge_[code]};
    }
    std::uint64_t anfang(Textcode code) const { return anfaenge_[code]; }
    const std::vector<std::uint64_t>& anfaenge() const { return anfaenge_; }

private:
    struct Platz
    {
        std::uint32_t streuwert = 0;
        Textcode code = 0; // 0: free
    };
    Textcode haengeAn(std::string_view text);
    void vergroessere();
    bool lohntSuche() const;
    bool falteAscii(std::size_t stelle) const;
    void falteAndere(std::size_t stelle) const;

    std::string bytes_;
    std::vector<std::uint64_t> anfaenge_{0, 0};
    std::vector<Platz> plaetze_;
    Textcode letzter_ = 0;
    std::uint64_t gefunden_ = 0;
    bool sucht_;
    mutable Gefaltet gefaltet_;
};

} // namespace quelvarn
