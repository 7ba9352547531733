#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// A text of a column by its number. 0 stands for Null.
using TextCode = std::uint32_t;

// The texts of one column in one run of bytes, each distinct text normally once. Code 0 is Null and holds no
// bytes. That a text stands here once saves room and time, but nothing relies on it: a column whose texts hardly
// ever repeat stops looking for known ones.
class TextPool
{
public:
    // How a text that came before is found again.
    enum class Search {
        All,       // among all texts
        Neighbour, // only the one added last: for texts that arrive in order
    };
    explicit TextPool(Search search = Search::All) : searches_(search == Search::All) {}

    TextCode codeOf(std::string_view text);
    std::string_view text(TextCode code) const
    {
        return {bytes_.data() + beginnings_[code], beginnings_[code + 1] - beginnings_[code]};
    }
    // Codes run from 0 to count() - 1.
    std::size_t count() const { return beginnings_.size() - 1; }
    // No more texts, or only few, are to come: frees what only filling needs.
    void commit();
    std::size_t memory() const;

    // The texts after foldCase, as bytes that share the offsets of the texts. A text whose length changes by
    // folding stands unfolded and is named in `otherLength`, in ascending order.
    struct Folded
    {
        std::string bytes;
        std::vector<TextCode> otherLength;
        TextCode until = 0;
    };
    const Folded& folded() const;
    std::string_view foldedText(TextCode code) const
    {
        return {folded_.bytes.data() + beginnings_[code], beginnings_[code + 1] - beginnings_[code]};
    }
    std::uint64_t begin(TextCode code) const { return beginnings_[code]; }
    const std::vector<std::uint64_t>& beginnings() const { return beginnings_; }

private:
    struct Place
    {
        std::uint32_t scatterValue = 0;
        TextCode code = 0; // 0: free
    };
    TextCode append(std::string_view text);
    void enlarge();
    bool paysSearch() const;
    bool foldAscii(std::size_t position) const;
    void foldOther(std::size_t position) const;

    std::string bytes_;
    std::vector<std::uint64_t> beginnings_{0, 0};
    std::vector<Place> places_;
    TextCode last_ = 0;
    std::uint64_t found_ = 0;
    bool searches_;
    mutable Folded folded_;
};

} // namespace quelvarn
