#include "tools/query_result.h"

#include <cmath>
#include <fmt/format.h>
#include <iterator>

namespace quelvarn::tools {

namespace {

constexpr std::size_t SCHUB = 64U << 10; // bytes

using Puffer = fmt::memory_buffer;

void fuegeAn(Puffer& ziel, std::string_view text)
{
    ziel.append(text.data(), text.data() + text.size());
}

void maskiere(Puffer& ziel, std::string_view text)
{
    for (const char zeichen : text) {
        switch (zeichen) {
        case '\t':
            fuegeAn(ziel, "\\t");
            break;
        case '\n':
            fuegeAn(ziel, "\\n");
            break;
        case '\r':
            fuegeAn(ziel, "\\r");
            break;
        default:
            ziel.push_back(zeichen);
        }
    }
}

void jsonText(Puffer& ziel, std::string_view text)
{
    ziel.push_back('"');
    for (const char zeichen : text) {
        if (zeichen == '"' || zeichen == '\\') {
            ziel.push_back('\\');
            ziel.push_back(zeichen);
        } else if (zeichen == '\n') {
            fuegeAn(ziel, "\\n");
        } else if (static_cast<unsigned char>(zeichen) < ' ') {
            fmt::format_to(std::back_inserter(ziel), "\\u{:04x}", static_cast<unsigned>(zeichen));
        } else {
            ziel.push_back(zeichen);
        }
    }
    ziel.push_back('"');
}

// The shortest text that reads back as the same number, marked as no whole number.
void gleitkommazahl(Puffer& ziel, double zahl)
{
    const std::string text = fmt::format("{}", zahl);
    fuegeAn(ziel, text);
    if (text.find_first_not_of("-0123456789") == std::string::npos)
        fuegeAn(ziel, ".0");
}

class Schreiber
{
public:
    Schreiber(Ausgabeform form, ResultBuffer& aus) : json_(form == Ausgabeform::Json), aus_(aus) {}

    void kopf(const std::vector<Spalte>& spalten)
    {
        beginneZeile();
        for (const Spalte& spalte : spalten) {
            trenne();
            text(spalte.name);
        }
        beendeZeile();
    }

    void zeile(const Zeilenleser& zeilen)
    {
        beginneZeile();
        for (std::size_t i = 0; i < zeilen.spalten().size(); ++i) {
            trenne();
            if (zeilen.istNull(i))
                fuegeAn(puffer_, json_ ? "null" : "");
            else if (zeilen.spalten()[i].typ == FeldTyp::Text)
                text(zeilen.text(i));
            else
                wert(zeilen.wert(i));
        }
        beendeZeile();
    }

    void spuele()
    {
        aus_.append({puffer_.data(), puffer_.size()});
        puffer_.clear();
    }

private:
    void beginneZeile()
    {
        ersteZelle_ = true;
        if (json_)
            puffer_.push_back('[');
    }
    void beendeZeile()
    {
        if (json_)
            puffer_.push_back(']');
        puffer_.push_back('\n');
        if (puffer_.size() >= SCHUB)
            spuele();
    }
    void trenne()
    {
        if (!ersteZelle_)
            puffer_.push_back(json_ ? ',' : '\t');
        ersteZelle_ = false;
    }
    void text(std::string_view text) { json_ ? jsonText(puffer_, text) : maskiere(puffer_, text); }
    void wert(const Value& wert)
    {
        if (const auto* zahl = std::get_if<std::int64_t>(&wert))
            fmt::format_to(std::back_inserter(puffer_), "{}", *zahl);
        else if (const auto* bruch = std::get_if<double>(&wert))
            gleitkommazahl(puffer_, *bruch);
        else if (const auto* datum = std::get_if<Zeitpunkt>(&wert))
            text(formatIso(*datum));
        else
            text(alsText(wert));
    }

    bool json_;
    ResultBuffer& aus_;
    Puffer puffer_;
    bool ersteZelle_ = true;
};

} // namespace

std::uint64_t gibZeilenAus(Zeilenleser& zeilen, Ausgabeform form, ResultBuffer& aus)
{
    Schreiber schreiber(form, aus);
    schreiber.kopf(zeilen.spalten());
    std::uint64_t anzahl = 0;
    while (zeilen.next()) {
        schreiber.zeile(zeilen);
        ++anzahl;
    }
    schreiber.spuele();
    return anzahl;
}

} // namespace quelvarn::tools
