#include "filter/filter_string.h"

#include "base/text.h"
#include "filter/filter_rows.h"

#include <algorithm>
#include <charconv>
#include <fmt/format.h>
#include <span>
#include <system_error>

namespace quelvarn {

namespace {

constexpr char TRENNER = '\\';
constexpr char ENDE = '|';
constexpr std::string_view STATUS_ENTRY = "Status";
constexpr std::string_view BENUTZDEF = "BenutzDef";
constexpr std::string_view ZUSBENUTZDEF = "ZusBenutzDef";
constexpr std::string_view STRUKTURMERK = "StrukturMerk";
constexpr std::string_view HAUPTMERKMAL = "Hauptmerkmal_";
constexpr char ERSTE_EBENE = 'C'; // Features A and B belong to the properties.

// How a row of the display table names the column of its step, where its Feldname is not the column.
struct Feldweg
{
    std::string_view Feldname;
    std::string_view Benennung;
    std::string_view spalte;
};
constexpr std::array<Feldweg, 3> TEXTFELDER{{
    {"DokubezDateiFile", "Dokumentname", "DokuBez"},
    {"DokubezDateiFile", "Dateiname", "Dateiname"},
    {"DokubezDateiFile", "Pfad-u. Dateiname", "filename"},
}};

// What an entry holds beside its row: the code of the step, or the pattern of a user-defined property once more.
std::string thirdPart(const FilterSchritt& step)
{
    return step.Feldname.empty() ? step.Muster : std::to_string(step.code);
}

struct Entry
{
    FilterRow row;
    std::string third;
};

// The entries that are stored.
std::vector<Entry> entries(const Filterzustand& zustand)
{
    std::vector<FilterRow> rows = filterRows(zustand);
    rows.resize(std::min(rows.size(), GESPEICHERTE_SCHRITTE));
    const std::span<const FilterSchritt> steps = filledSteps(zustand);
    std::vector<Entry> stored;
    for (std::size_t i = 0; i < rows.size(); ++i)
        stored.push_back({std::move(rows[i]), i < steps.size() ? thirdPart(steps[i]) : std::string()});
    return stored;
}

// Takes the entries of a stored text one by one.
class Leser
{
public:
    // False for a damaged entry.
    bool nimm(std::string_view eintrag)
    {
        const std::vector<std::string> teile = split(eintrag, TRENNER);
        if (teile.size() != 4)
            return false;
        if (teile[0].empty() && teile[2].empty() && teile[3] == STATUS_ENTRY)
            return nimmStatus(teile[1]);
        const FilterRow zeile{teile[0], teile[3], teile[1]};
        return taken() < GESPEICHERTE_SCHRITTE && passt(zeile) && nimmZeile(zeile, teile[2]);
    }

    GespeicherterFilter ergebnis() && { return std::move(filter_); }

private:
    std::size_t taken() const { return static_cast<std::size_t>(filter_.FilterAnzahl) + filter_.ZusBenutzDef.size(); }

    bool nimmStatus(std::string_view ziffern)
    {
        const auto istZiffer = [](char zeichen) { return zeichen == '0' || zeichen == '1'; };
        if (ziffern.size() != ANZAHL_STATUS || !std::ranges::all_of(ziffern, istZiffer))
            return false;
        auto& haken = filter_.ChFilterStat.emplace();
        std::ranges::transform(ziffern, haken.begin(), [](char zeichen) { return zeichen == '1'; });
        return true;
    }

    static Filterbereich bereichVon(const FilterRow& zeile)
    {
        if (zeile.Feldname == BENUTZDEF || zeile.Feldname.starts_with(ZUSBENUTZDEF))
            return Filterbereich::BenutzDef;
        const bool merkmal = zeile.Feldname.starts_with(HAUPTMERKMAL) && zeile.Feldname.back() >= ERSTE_EBENE;
        return merkmal || zeile.Feldname.starts_with(STRUKTURMERK) ? Filterbereich::Struktur
                                                                   : Filterbereich::Eigenschaften;
    }

    // The parts of the page do not mix.
    bool passt(const FilterRow& zeile)
    {
        const Filterbereich bereich = bereichVon(zeile);
        if (taken() == 0)
            filter_.bereich = bereich;
        return filter_.bereich == bereich && !zeile.Feldname.empty();
    }

    bool nimmZeile(const FilterRow& zeile, std::string_view drittes)
    {
        if (zeile.Feldname == BENUTZDEF)
            return append({"", zeile.Benennung, CodeText, zeile.Wert});
        if (zeile.Feldname.starts_with(ZUSBENUTZDEF))
            return zusatz(zeile);
        if (zeile.Feldname.starts_with(HAUPTMERKMAL))
            return (filter_.bereich != Filterbereich::Struktur || istNaechsteEbene(zeile.Feldname)) &&
                   step(zeile, zeile.Feldname, zeile.Wert, CodeText);
        if (zeile.Feldname.starts_with(STRUKTURMERK)) {
            const std::string spalte = zeile.Feldname.substr(STRUKTURMERK.size());
            return (spalte == "Material" || spalte == "Firma") && step(zeile, spalte, zeile.Wert, CodeText);
        }
        return eigenschaft(zeile, drittes);
    }

    // The tree is walked from level C down.
    bool istNaechsteEbene(std::string_view Feldname) const
    {
        return Feldname.substr(HAUPTMERKMAL.size()) ==
               std::string(1, static_cast<char>(ERSTE_EBENE + filter_.FilterAnzahl));
    }

    bool step(const FilterRow& row, std::string_view column, std::string_view value, int code)
    {
        return append({std::string(column), std::string(value), code, "", {row.Feldname, row.Benennung}});
    }

    bool append(FilterSchritt neuer)
    {
        filter_.FilterSchritte[static_cast<std::size_t>(filter_.FilterAnzahl++)] = std::move(neuer);
        return true;
    }

    bool zusatz(const FilterRow& zeile)
    {
        const auto stelle = std::ranges::find(ZUSATZSPALTEN, zeile.Feldname.substr(ZUSBENUTZDEF.size()));
        if (stelle == ZUSATZSPALTEN.end())
            return false;
        setAdditionalValue(filter_.ZusBenutzDef,
                           {static_cast<std::size_t>(stelle - ZUSATZSPALTEN.begin()), zeile.Wert, zeile.Benennung});
        return true;
    }

    bool eigenschaft(const FilterRow& zeile, std::string_view drittes)
    {
        int code = 0;
        const auto gelesen = std::from_chars(drittes.data(), drittes.data() + drittes.size(), code);
        if (gelesen.ec != std::errc() || gelesen.ptr != drittes.data() + drittes.size() || code < 0 || code > 99)
            return false;
        if (const std::string_view spalte = datumsspalte(zeile, code); !spalte.empty())
            return datum(zeile, spalte, code);
        const auto textfeld = std::ranges::find_if(TEXTFELDER, [&](const Feldweg& weg) {
            return weg.Feldname == zeile.Feldname && weg.Benennung == zeile.Benennung;
        });
        const bool quickfilter = zeile.Feldname == "FilternDatum"; // Its second row: Autor or Bearbeiter.
        const std::string spalte = textfeld != TEXTFELDER.end() ? std::string(textfeld->spalte)
                                   : quickfilter                ? zeile.Benennung
                                                                : zeile.Feldname;
        return !spalte.empty() && zeile.Feldname != "Kalender" && step(zeile, spalte, zeile.Wert, code);
    }

    // "" when the row is no date.
    static std::string_view datumsspalte(const FilterRow& zeile, int code)
    {
        const bool datumszeile = zeile.Feldname == "Kalender" || zeile.Feldname == "FilternDatum";
        for (const std::string_view spalte : {"Erstellt", "Geaendert"})
            if ((datumszeile ? zeile.Benennung : zeile.Feldname) == spalte)
                return spalte;
        if (code / 10 == CodeErstellt / 10)
            return "Erstellt";
        return code / 10 == CodeGeaendert / 10 ? "Geaendert" : "";
    }

    // The operator in front of the date counts more than that of the code.
    bool datum(const FilterRow& zeile, std::string_view spalte, int code)
    {
        const auto [written, tag] = splitOperator(zeile.Wert);
        const int op = written.value_or(code % 10);
        const int stamm = spalte == "Erstellt" ? CodeErstellt : CodeGeaendert;
        return op < static_cast<int>(OPERATORS.size()) && step(zeile, spalte, trim(tag), stamm + op);
    }

    GespeicherterFilter filter_;
};

} // namespace

std::string alsFilterstring(const Filterzustand& zustand)
{
    std::string text;
    for (const auto& [row, third] : entries(zustand))
        text += fmt::format("{}\\{}\\{}\\{}|", row.Feldname, row.Wert, third, row.Benennung);
    const auto& haken = zustand.ChFilterStat;
    if (std::ranges::find(haken, true) == haken.end())
        return text;
    std::string ziffern;
    for (const bool gesetzt : haken)
        ziffern += gesetzt ? '1' : '0';
    return text + "\\" + ziffern + "\\\\Status|";
}

GespeicherterFilter leseFilterstring(std::string_view Filterstring)
{
    Leser leser;
    // An entry without its end was cut off.
    for (std::size_t ende = Filterstring.find(ENDE); ende != std::string_view::npos && ende > 0;
         ende = Filterstring.find(ENDE)) {
        if (!leser.nimm(Filterstring.substr(0, ende)))
            break;
        Filterstring.remove_prefix(ende + 1);
    }
    return std::move(leser).ergebnis();
}

bool speicherbar(const Filterzustand& zustand)
{
    const auto whole = [](std::string_view text) { return text.find_first_of("\\|") == std::string_view::npos; };
    return std::ranges::all_of(entries(zustand), [&](const Entry& entry) {
        return whole(entry.row.Feldname) && whole(entry.row.Wert) && whole(entry.row.Benennung) && whole(entry.third);
    });
}

} // namespace quelvarn
