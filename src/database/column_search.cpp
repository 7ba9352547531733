#include "database/column_search.h"

#include "base/collation.h"
#include "base/text.h"

#include <algorithm>
#include <cstring>
#include <future>

namespace quelvarn {

namespace {

constexpr unsigned BLOCKBITS = 12;            // 4,096 texts are judged at once.
constexpr std::size_t BLOECKE_FUER_ZWEI = 16; // From this many blocks on two threads judge them.
constexpr std::size_t FENSTER = 128;
constexpr std::size_t LONGEST_SOUGHT = 64; // bytes; a longer text is looked for in each text by itself

// Marks the places of a window where a text may begin, going by three of its bytes. False when there is none. The
// fixed length lets the compiler use vector instructions.
bool merkeAnfaenge(const char* fenster, std::string_view gesucht, std::uint8_t* __restrict anfaenge)
{
    const std::size_t letzte = gesucht.size() - 1;
    const std::size_t mittlere = gesucht.size() / 2;
    const char a = gesucht.front();
    const char b = gesucht[mittlere];
    const char c = gesucht.back();
    std::uint8_t einer = 0;
    for (std::size_t i = 0; i < FENSTER; ++i) {
        anfaenge[i] = static_cast<std::uint8_t>(fenster[i] == a) &
                      static_cast<std::uint8_t>(fenster[i + mittlere] == b) &
                      static_cast<std::uint8_t>(fenster[i + letzte] == c);
        einer |= anfaenge[i];
    }
    return einer != 0;
}

std::uint8_t* naechster(std::uint8_t* von, std::uint8_t* bis)
{
    void* gefunden = std::memchr(von, 1, static_cast<std::size_t>(bis - von));
    return gefunden ? static_cast<std::uint8_t*>(gefunden) : bis;
}

// LIKE over the folded texts of a column: the plain shapes by comparing bytes, the others by the pattern where the
// text can match at all.
class LikeTreffer : public Texttreffer
{
public:
    LikeTreffer(const TextColumn& spalte, LikePattern muster, bool verneint)
        : Texttreffer(spalte, verneint), muster_(std::move(muster))
    {}

protected:
    void bewerte(Textcode von, Textcode bis, std::vector<std::uint8_t>& urteil) override
    {
        const auto& gefaltet = texte().gefaltet();
        const bool vorn = muster_.shape() == LikePattern::Shape::Exact || muster_.shape() == LikePattern::Shape::Prefix;
        const std::string& required = muster_.required();
        if (!vorn && !required.empty() && required.size() <= LONGEST_SOUGHT)
            bewerteFundstellen(von, bis, urteil);
        else
            for (Textcode code = von; code < bis; ++code)
                urteil[code] = trifft(texte().gefalteterText(code));
        const auto& andere = gefaltet.andereLaenge;
        for (auto code = std::lower_bound(andere.begin(), andere.end(), von); code != andere.end() && *code < bis;
             ++code)
            urteil[*code] = muster_.matches(texte().text(*code));
    }

private:
    bool trifft(std::string_view gefaltet) const
    {
        switch (muster_.shape()) {
        case LikePattern::Shape::Exact:
            return gefaltet == muster_.literal();
        case LikePattern::Shape::Prefix: {
            const std::string& text = muster_.literal();
            return gefaltet.size() >= text.size() && std::memcmp(gefaltet.data(), text.data(), text.size()) == 0;
        }
        case LikePattern::Shape::Contains:
        case LikePattern::Shape::Other:
            break;
        }
        return muster_.matchesFolded(gefaltet);
    }

    // Looks only at the texts that hold what every match must hold.
    void bewerteFundstellen(Textcode von, Textcode bis, std::vector<std::uint8_t>& urteil)
    {
        const auto& anfaenge = texte().anfaenge();
        const std::string_view bytes = std::string_view(texte().gefaltet().bytes).substr(0, anfaenge[bis]);
        const std::string& text = muster_.required();
        Textcode code = von;
        for (std::size_t stelle = anfaenge[von];;) {
            stelle = findeBytes(bytes, text, stelle);
            if (stelle == std::string_view::npos)
                return;
            while (anfaenge[code + 1] <= stelle)
                ++code;
            // What runs over the end of the text does so from each later place as well.
            if (stelle + text.size() <= anfaenge[code + 1])
                urteil[code] = muster_.shape() == LikePattern::Shape::Contains ||
                               muster_.matchesFolded(texte().gefalteterText(code));
            stelle = anfaenge[code + 1];
        }
    }

    LikePattern muster_;
};

// Most texts differ from the wanted one by a plain letter or digit, which their bytes tell; the collation decides
// about the others.
class GleichTreffer : public Texttreffer
{
public:
    GleichTreffer(const TextColumn& spalte, std::string_view text, bool verneint)
        : Texttreffer(spalte, verneint), text_(text), gefaltet_(foldCase(trimRightBlanks(text)))
    {}

protected:
    void bewerte(Textcode von, Textcode bis, std::vector<std::uint8_t>& urteil) override
    {
        texte().gefaltet();
        for (Textcode code = von; code < bis; ++code)
            urteil[code] = kannGleichSein(texte().gefalteterText(code)) && equalText(texte().text(code), text_);
    }

private:
    bool kannGleichSein(std::string_view gefaltet) const
    {
        const auto [hier, dort] = std::mismatch(gefaltet.begin(), gefaltet.end(), gefaltet_.begin(), gefaltet_.end());
        const bool hierEinfach = hier == gefaltet.end() || istEinfach(*hier);
        const bool dortEinfach = dort == gefaltet_.end() || istEinfach(*dort);
        const bool beideZuEnde = hier == gefaltet.end() && dort == gefaltet_.end();
        return beideZuEnde || !hierEinfach || !dortEinfach;
    }

    static bool istEinfach(char zeichen)
    {
        return (zeichen >= 'a' && zeichen <= 'z') || (zeichen >= '0' && zeichen <= '9');
    }

    std::string text_;
    std::string gefaltet_;
};

class PruefTreffer : public Texttreffer
{
public:
    PruefTreffer(const TextColumn& spalte, std::function<bool(std::string_view)> pruefung)
        : Texttreffer(spalte, false), pruefung_(std::move(pruefung))
    {}

protected:
    void bewerte(Textcode von, Textcode bis, std::vector<std::uint8_t>& urteil) override
    {
        for (Textcode code = von; code < bis; ++code)
            urteil[code] = pruefung_(texte().text(code));
    }

private:
    std::function<bool(std::string_view)> pruefung_;
};

} // namespace

std::size_t findeBytes(std::string_view bytes, std::string_view gesucht, std::size_t ab)
{
    std::uint8_t anfaenge[FENSTER];
    std::uint8_t* const ende = anfaenge + FENSTER;
    for (; ab + FENSTER + gesucht.size() <= bytes.size(); ab += FENSTER) {
        if (!merkeAnfaenge(bytes.data() + ab, gesucht, anfaenge))
            continue;
        for (std::uint8_t* stelle = naechster(anfaenge, ende); stelle != ende; stelle = naechster(stelle + 1, ende)) {
            const std::size_t treffer = ab + static_cast<std::size_t>(stelle - anfaenge);
            if (bytes.compare(treffer, gesucht.size(), gesucht) == 0)
                return treffer;
        }
    }
    return bytes.find(gesucht, ab);
}

Texttreffer::Texttreffer(const TextColumn& spalte, bool verneint)
    : spalte_(spalte), verneint_(verneint), urteil_(spalte.texte().anzahl()),
      bewertet_((urteil_.size() >> BLOCKBITS) + 1)
{}

void Texttreffer::behalte(std::vector<Zeilennummer>& zeilen)
{
    const Textcode* codes = spalte_.codes().data();
    std::size_t bleiben = 0;
    for (const Zeilennummer zeile : zeilen) {
        const Textcode code = codes[zeile];
        if (!bewertet_[code >> BLOCKBITS])
            bewerteBlock(code >> BLOCKBITS);
        zeilen[bleiben] = zeile;
        bleiben += urteil_[code];
    }
    zeilen.resize(bleiben);
}

bool Texttreffer::nirgends()
{
    const std::size_t bloecke = bewertet_.size();
    if (bloecke < BLOECKE_FUER_ZWEI) {
        bewerteBloecke(0, bloecke);
    } else {
        spalte_.texte().gefaltet(); // Made when first asked for, which only one may do.
        std::future<void> haelfte = std::async(std::launch::async, [&] { bewerteBloecke(bloecke / 2, bloecke); });
        bewerteBloecke(0, bloecke / 2);
        haelfte.get();
    }
    return std::memchr(urteil_.data(), 1, urteil_.size()) == nullptr;
}

void Texttreffer::bewerteBloecke(std::size_t von, std::size_t bis)
{
    for (std::size_t block = von; block < bis; ++block)
        if (!bewertet_[block])
            bewerteBlock(block);
}

void Texttreffer::bewerteBlock(std::size_t block)
{
    bewertet_[block] = 1;
    const auto von = static_cast<Textcode>(block << BLOCKBITS);
    const auto bis = static_cast<Textcode>(std::min<std::size_t>(von + (std::size_t{1} << BLOCKBITS), urteil_.size()));
    bewerte(von, bis, urteil_);
    if (verneint_)
        for (Textcode code = von; code < bis; ++code)
            urteil_[code] ^= 1;
    if (von == 0)
        urteil_[0] = 0;
}

std::unique_ptr<Texttreffer> likeTreffer(const TextColumn& spalte, std::string_view muster, Wildcards platzhalter,
                                         bool verneint)
{
    return std::make_unique<LikeTreffer>(spalte, LikePattern(muster, platzhalter), verneint);
}

std::unique_ptr<Texttreffer> gleichTreffer(const TextColumn& spalte, std::string_view text, bool verneint)
{
    return std::make_unique<GleichTreffer>(spalte, text, verneint);
}

std::unique_ptr<Texttreffer> pruefTreffer(const TextColumn& spalte, std::function<bool(std::string_view)> pruefung)
{
    return std::make_unique<PruefTreffer>(spalte, std::move(pruefung));
}

} // namespace quelvarn
