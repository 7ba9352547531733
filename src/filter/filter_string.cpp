#include "filter/filter_string.h"

#include "base/text.h"
#include "filter/user_defined_match.h"

#include <algorithm>
#include <charconv>
#include <fmt/format.h>
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
constexpr std::array<std::string_view, 3> OPERATOREN{">= ", "= ", "<= "};

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

// The row of the statuses mirrors no step.
bool istStatuszeile(const Filterwert& zeile)
{
    return zeile.Feldname.empty() && zeile.Benennung == STATUS_ENTRY;
}

std::string drittesFeld(const FilterSchritt& schritt, const Filterwert& zeile)
{
    if (zeile.Feldname == BENUTZDEF || zeile.Feldname.starts_with(ZUSBENUTZDEF))
        return schritt.Muster;
    return std::to_string(schritt.code);
}

// The rows that are stored, each with its step.
template <class Tat>
void fuerJedeZeile(const Filterzustand& zustand, const std::vector<Filterwert>& FilterWerteTabelle, Tat tat)
{
    std::size_t schritt = 0;
    for (const Filterwert& zeile : FilterWerteTabelle) {
        if (istStatuszeile(zeile))
            continue;
        if (schritt == GESPEICHERTE_SCHRITTE)
            return;
        tat(zustand.FilterSchritte[schritt++], zeile);
    }
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
        const Filterwert zeile{teile[0], teile[3], teile[1]};
        if (filter_.FilterWerteTabelle.size() == GESPEICHERTE_SCHRITTE || !passt(zeile) || !nimmZeile(zeile, teile[2]))
            return false;
        filter_.FilterWerteTabelle.push_back(zeile);
        return true;
    }

    GespeicherterFilter ergebnis() && { return std::move(filter_); }

private:
    bool nimmStatus(std::string_view ziffern)
    {
        const auto istZiffer = [](char zeichen) { return zeichen == '0' || zeichen == '1'; };
        if (ziffern.size() != ANZAHL_STATUS || !std::ranges::all_of(ziffern, istZiffer))
            return false;
        auto& haken = filter_.ChFilterStat.emplace();
        std::ranges::transform(ziffern, haken.begin(), [](char zeichen) { return zeichen == '1'; });
        return true;
    }

    static Filterbereich bereichVon(const Filterwert& zeile)
    {
        if (zeile.Feldname == BENUTZDEF || zeile.Feldname.starts_with(ZUSBENUTZDEF))
            return Filterbereich::BenutzDef;
        const bool merkmal = zeile.Feldname.starts_with(HAUPTMERKMAL) && zeile.Feldname.back() >= ERSTE_EBENE;
        return merkmal || zeile.Feldname.starts_with(STRUKTURMERK) ? Filterbereich::Struktur
                                                                   : Filterbereich::Eigenschaften;
    }

    // The parts of the page do not mix.
    bool passt(const Filterwert& zeile)
    {
        const Filterbereich bereich = bereichVon(zeile);
        if (filter_.FilterWerteTabelle.empty())
            filter_.bereich = bereich;
        return filter_.bereich == bereich && !zeile.Feldname.empty();
    }

    bool nimmZeile(const Filterwert& zeile, std::string_view drittes)
    {
        if (zeile.Feldname == BENUTZDEF)
            return schritt({"", zeile.Benennung, CodeText, zeile.Wert});
        if (zeile.Feldname.starts_with(ZUSBENUTZDEF))
            return zusatz(zeile);
        if (zeile.Feldname.starts_with(HAUPTMERKMAL))
            return (filter_.bereich != Filterbereich::Struktur || istNaechsteEbene(zeile.Feldname)) &&
                   schritt({zeile.Feldname, zeile.Wert, CodeText, ""});
        if (zeile.Feldname.starts_with(STRUKTURMERK)) {
            const std::string spalte = zeile.Feldname.substr(STRUKTURMERK.size());
            return (spalte == "Material" || spalte == "Firma") && schritt({spalte, zeile.Wert, CodeText, ""});
        }
        return eigenschaft(zeile, drittes);
    }

    // The tree is walked from level C down.
    bool istNaechsteEbene(std::string_view Feldname) const
    {
        return Feldname.substr(HAUPTMERKMAL.size()) ==
               std::string(1, static_cast<char>(ERSTE_EBENE + filter_.strukturpfad().size()));
    }

    bool schritt(FilterSchritt neuer)
    {
        filter_.FilterSchritte[static_cast<std::size_t>(filter_.FilterAnzahl++)] = std::move(neuer);
        return true;
    }

    bool zusatz(const Filterwert& zeile)
    {
        const auto stelle = std::ranges::find(ZUSATZSPALTEN, zeile.Feldname.substr(ZUSBENUTZDEF.size()));
        if (stelle == ZUSATZSPALTEN.end())
            return false;
        filter_.ZusBenutzDef[static_cast<std::size_t>(stelle - ZUSATZSPALTEN.begin())] = zeile.Wert;
        ++filter_.BenutzDefAnzahl;
        return true;
    }

    bool eigenschaft(const Filterwert& zeile, std::string_view drittes)
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
        return zeile.Feldname != "Kalender" && schritt({spalte, zeile.Wert, code, ""});
    }

    // "" when the row is no date.
    static std::string_view datumsspalte(const Filterwert& zeile, int code)
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
    bool datum(const Filterwert& zeile, std::string_view spalte, int code)
    {
        int op = code % 10;
        std::string_view tag = zeile.Wert;
        for (std::size_t i = 0; i < OPERATOREN.size(); ++i)
            if (zeile.Wert.starts_with(OPERATOREN[i])) {
                op = static_cast<int>(i);
                tag = std::string_view(zeile.Wert).substr(OPERATOREN[i].size());
                break;
            }
        const int stamm = spalte == "Erstellt" ? CodeErstellt : CodeGeaendert;
        return op < static_cast<int>(OPERATOREN.size()) &&
               schritt({std::string(spalte), std::string(tag), stamm + op, ""});
    }

    GespeicherterFilter filter_;
};

} // namespace

std::vector<std::string> GespeicherterFilter::strukturpfad() const
{
    std::vector<std::string> pfad;
    for (const FilterSchritt& schritt : FilterSchritte)
        if (bereich == Filterbereich::Struktur && schritt.Feldname.starts_with(HAUPTMERKMAL))
            pfad.push_back(schritt.Wert);
    return pfad;
}

std::string GespeicherterFilter::wertVon(std::string_view Feldname) const
{
    if (bereich == Filterbereich::Struktur)
        for (const FilterSchritt& schritt : FilterSchritte)
            if (schritt.Feldname == Feldname)
                return schritt.Wert;
    return "";
}

std::string alsFilterstring(const Filterzustand& zustand, const std::vector<Filterwert>& FilterWerteTabelle)
{
    std::string text;
    fuerJedeZeile(zustand, FilterWerteTabelle, [&](const FilterSchritt& schritt, const Filterwert& zeile) {
        text +=
            fmt::format("{}\\{}\\{}\\{}|", zeile.Feldname, zeile.Wert, drittesFeld(schritt, zeile), zeile.Benennung);
    });
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

bool speicherbar(const Filterzustand& zustand, const std::vector<Filterwert>& FilterWerteTabelle)
{
    bool ohneTrenner = true;
    const auto pruefe = [&](std::string_view text) {
        ohneTrenner = ohneTrenner && text.find_first_of("\\|") == std::string_view::npos;
    };
    fuerJedeZeile(zustand, FilterWerteTabelle, [&](const FilterSchritt& schritt, const Filterwert& zeile) {
        for (const std::string_view text : {zeile.Feldname, zeile.Wert, zeile.Benennung})
            pruefe(text);
        pruefe(drittesFeld(schritt, zeile));
    });
    return ohneTrenner;
}

} // namespace quelvarn
