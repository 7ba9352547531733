#pragma once

#include "base/like_pattern.h"
#include "database/column.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// The first place of `gesucht` in `bytes` at or behind `ab`; std::string_view::npos when there is none.
std::size_t findeBytes(std::string_view bytes, std::string_view gesucht, std::size_t ab);

// Tells for each text of a column whether it meets a condition, and by that which rows do. Each text is judged
// once, in blocks, when a row with a text of that block is first asked for.
class Texttreffer
{
public:
    virtual ~Texttreffer() = default;
    // Removes the rows that do not meet the condition; the others stay in their order. Null never meets one.
    void behalte(std::vector<Zeilennummer>& zeilen);
    // True when no text of the column meets the condition. Judges all of them, on two processors when they are many.
    bool nirgends();

protected:
    Texttreffer(const TextColumn& spalte, bool verneint);
    // Sets urteil[code] to 1 for the codes from `von` up to, not including, `bis` that meet the condition; all
    // are 0 before. May run for different codes at the same time.
    virtual void bewerte(Textcode von, Textcode bis, std::vector<std::uint8_t>& urteil) = 0;
    const Textvorrat& texte() const { return spalte_.texte(); }

private:
    void bewerteBlock(std::size_t block);
    void bewerteBloecke(std::size_t von, std::size_t bis);

    const TextColumn& spalte_;
    bool verneint_;
    std::vector<std::uint8_t> urteil_;
    std::vector<std::uint8_t> bewertet_; // by block
};

std::unique_ptr<Texttreffer> likeTreffer(const TextColumn& spalte, std::string_view muster, Wildcards platzhalter,
                                         bool verneint);
// Texts equal to this one, blind to case and to trailing blanks.
std::unique_ptr<Texttreffer> gleichTreffer(const TextColumn& spalte, std::string_view text, bool verneint);
// Texts of which the test is true.
std::unique_ptr<Texttreffer> pruefTreffer(const TextColumn& spalte, std::function<bool(std::string_view)> pruefung);

} // namespace quelvarn
