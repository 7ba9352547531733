#include "sample/documents.h"
#include "sample/random.h"
#include "sample/vocabulary.h"

#include <charconv>
#include <cmath>
#include <fmt/format.h>

namespace quelvarn::sample {

namespace {

enum Frage : std::uint64_t { INHALT = 40, JE_REVISION };

Value text(std::string_view wert)
{
    return std::string(wert);
}

// Registers are filled in by hand: the chance that a field is missing, half of it as Null.
Value oft(Zufall& zufall, std::uint32_t vonHundert, std::string_view wert)
{
    const auto wurf = zufall.unter(100);
    if (wurf < vonHundert && !wert.empty())
        return text(wert);
    const auto rest = wurf % 8;
    return rest < 4 ? Value{} : text(rest < 7 ? "" : " ");
}

double zahl(std::string_view ziffern)
{
    double ergebnis = 0;
    const auto komma = ziffern.find(',');
    std::string text(ziffern);
    if (komma != std::string_view::npos)
        text[komma] = '.';
    std::from_chars(text.data(), text.data() + text.size(), ergebnis);
    return ergebnis;
}

// As a person would type it: 0.15, not 0.15000000000000002.
double gerundet(double wert)
{
    return std::round(wert * 1000) / 1000;
}

constexpr std::string_view ZUSAETZE = "|||| links| rechts| oben| unten| kurz| lang| 2-teilig";

std::string_view format(std::uint16_t nummer, Zufall& zufall)
{
    return zufall.teil(nummer % 100 == 0 ? "A0|A1|A1 quer" : nummer % 10 == 0 ? "A1|A2" : "A4|A4|A3|A2");
}

} // namespace

const Bauform* Dokumente::findBauform(const Teil& teil) const
{
    switch (teil.tab) {
    case Tab::Part:
        return &(teil.bereich == Bereich::Getriebe ? zahnradteile() : bauteile())[teil.bauform];
    case Tab::SheetM:
        return &blechteile()[teil.bauform];
    case Tab::Assemb:
        return &baugruppen()[teil.nummer == 0 ? 0 : 1];
    case Tab::Weld:
        return &schweissteile()[0];
    case Tab::STbl3:
        return &vorrichtungen()[teil.bauform];
    default:
        return teil.bereich == Bereich::Vorlage ? &bauteile()[teil.bauform] : nullptr;
    }
}

std::string Dokumente::titel(std::uint32_t teil) const
{
    const auto quelle = modell(teil);
    const Teil& t = plan_.teil(quelle);
    if (t.bereich == Bereich::Norm) {
        if (t.tab == Tab::Draft)
            return "Normteilübersicht";
        const Normteil norm = normteil(t.projekt);
        const Normreihe& reihe = normreihen()[norm.reihe];
        return fmt::format("{} {}{}{}", reihe.titel, reihe.vorsatz, norm.groesse,
                           norm.laenge.empty() ? "" : fmt::format("x{}", norm.laenge));
    }
    if (t.bereich == Bereich::Kauf)
        return fmt::format("{} {}", kaufreihen()[t.bauform].titel, dokuBez(quelle).substr(3));
    if (t.bereich == Bereich::Vorrichtung)
        return fmt::format("{}{}", vorrichtungen()[t.bauform].name,
                           t.nummer == 0    ? ""
                           : t.nummer == 10 ? " Grundplatte"
                                            : " Zusammenstellung");
    if (t.bereich == Bereich::Vorlage)
        return fmt::format("Vorlage {}", bauteile()[t.bauform].name);
    if (t.tab == Tab::Weld)
        return titel(t.eltern) + " geschweißt";
    if (t.tab != Tab::Assemb)
        return fmt::format("{}{}", findBauform(t)->name, Zufall{plan_.start(), INHALT, quelle}.teil(ZUSAETZE));
    const Maschine& maschine = plan_.maschine(t.bereich, t.projekt);
    if (t.nummer == 0)
        return std::string(maschine.name);
    return std::string(t.nummer % 100 == 0
                           ? gruppenname(t)
                           : maschine.gruppen[t.nummer / 100 - 1].unterbaugruppen[t.nummer % 100 / 10 - 1]);
}

Value Dokumente::material(std::uint32_t teil) const
{
    const Teil& t = plan_.teil(teil);
    Zufall zufall{plan_.start(), INHALT, teil, 1};
    if (t.bereich == Bereich::Norm)
        return text(normteil(t.projekt).ausfuehrung);
    const Bauform* bauform = t.tab == Tab::Draft ? nullptr : findBauform(t);
    return bauform ? oft(zufall, 92, zufall.teil(bauform->material)) : Value{};
}

Value Dokumente::thema(const Teil& teil) const
{
    if (teil.bereich > Bereich::Rahmen)
        return {};
    return text(plan_.maschine(teil.bereich, teil.projekt).name);
}

std::string_view Dokumente::kategorie(const Teil& teil, Zufall& zufall) const
{
    switch (teil.bereich) {
    case Bereich::Norm:
        return "Normteil";
    case Bereich::Kauf:
        return "Kaufteil";
    case Bereich::Vorrichtung:
        return "Vorrichtung";
    case Bereich::Vorlage:
        return "QV_Vorlage";
    default:
        return zufall.teil(teil.tab == Tab::Draft ? "Fertigungszeichnung|Fertigungszeichnung|Angebotszeichnung"
                                                  : "Fertigungsteil|Fertigungsteil|Versuchsteil|Ersatzteil");
    }
}

// The five levels of the structure tree. A template leaves the levels below its own empty, never Null.
void Dokumente::fuegeMerkmaleAn(const Teil& teil, Zufall& zufall, std::vector<Value>& werte) const
{
    werte.push_back(oft(zufall, 70, zufall.teil("Eigenfertigung|Eigenfertigung|Lohnfertigung|Zukauf")));
    werte.push_back(oft(zufall, 65, zufall.teil("Einzelteil|Verschleißteil|Vorzugsteil|Ersatzteil")));
    std::array<std::string_view, STRUKTURMERKMALE> merkmale{};
    if (teil.bereich == Bereich::Norm) {
        const Normteil norm = normteil(teil.projekt);
        const Normreihe& reihe = normreihen()[norm.reihe];
        merkmale = {"Normteile", reihe.gruppe, reihe.art, reihe.norm, norm.ausfuehrung};
    } else if (teil.bereich == Bereich::Kauf) {
        const Kaufreihe& reihe = kaufreihen()[teil.bauform];
        merkmale = {"Kaufteile", reihe.gruppe, zufall.teil("Katalogteil|Sonderausführung"), reihe.hersteller, ""};
    } else if (const Bauform* bauform = findBauform(teil)) {
        for (std::size_t i = 0; i < merkmale.size(); ++i)
            merkmale[i] = zufall.teil(bauform->merkmale[i]);
    }
    const std::size_t ebenen = teil.bereich == Bereich::Vorlage ? 1 + teil.nummer % STRUKTURMERKMALE : STRUKTURMERKMALE;
    for (std::size_t i = 0; i < merkmale.size(); ++i) {
        if (teil.bereich == Bereich::Vorlage)
            werte.push_back(text(i < ebenen ? merkmale[i] : ""));
        else
            werte.push_back(merkmale[i].empty() || zufall.prozent(4) ? (zufall.prozent(60) ? Value{} : text(""))
                                                                     : text(merkmale[i]));
    }
}

void Dokumente::fuegeHauptwerteAn(const Teil& teil, Zufall& zufall, std::vector<Value>& werte) const
{
    std::array<std::string_view, HAUPTWERTE> alias{};
    const Bauform* bauform = findBauform(teil);
    for (std::size_t i = 0; i < HAUPTWERTE; ++i) {
        Value wert = zufall.prozent(50) ? Value{} : Value{0.0};
        if (teil.bereich == Bereich::Norm && i < 2) {
            const Normteil norm = normteil(teil.projekt);
            const auto ziffern = i == 0 ? norm.groesse : norm.laenge;
            alias[i] = i == 0 ? normreihen()[norm.reihe].alias : ziffern.empty() ? "" : "Länge";
            wert = ziffern.empty() ? wert : Value{zahl(ziffern)};
        } else if (teil.bereich == Bereich::Kauf && i == 0) {
            alias[i] = kaufreihen()[teil.bauform].alias;
            wert = zahl(zufall.teil(kaufreihen()[teil.bauform].groessen));
        } else if (bauform && !bauform->masse[i].alias.empty()) {
            const Mass& mass = bauform->masse[i];
            alias[i] = mass.alias;
            wert = gerundet(mass.von + mass.schritt * zufall.unter(static_cast<std::uint32_t>(mass.stufen)));
        }
        werte.push_back(std::move(wert));
    }
    for (const auto name : alias)
        werte.push_back(name.empty() ? (zufall.prozent(60) ? Value{} : text("")) : text(name));
}

void Dokumente::zeile(std::uint32_t teil, int revision, std::vector<Value>& werte) const
{
    const Teil& t = plan_.teil(teil);
    const Teil& m = plan_.teil(modell(teil));
    Zufall zufall{plan_.start(), JE_REVISION, teil, static_cast<std::uint64_t>(revision)};
    werte.clear();
    for (const auto& name :
         {dokuBez(teil), revBez(teil, revision), dateiname(teil, revision), filename(teil, revision)})
        werte.emplace_back(name);
    werte.emplace_back(std::int64_t{status(teil, revision)});
    werte.push_back(oft(zufall, 96, projekt(teil)));
    werte.push_back(material(teil));
    werte.emplace_back(erstellt(teil, revision));
    werte.push_back(autor(teil));
    werte.emplace_back(geaendert(teil, revision));
    werte.push_back(bearbeiter(teil, revision));
    werte.push_back(revision == 0 ? oft(zufall, 50, "Ersterstellung") : oft(zufall, 80, zufall.teil(AENDERUNGEN)));
    werte.push_back(geaendert(teil, revision).plusSekunden(zufall.zwischen(30, 900)));
    werte.push_back(oft(zufall, 97, titel(teil)));
    werte.push_back(thema(t));
    werte.push_back(oft(zufall, 35, zufall.teil(MANAGER)));
    werte.push_back(oft(zufall, 80, zufall.teil(FIRMEN)));
    const auto art = kategorie(t, zufall);
    werte.push_back(t.bereich == Bereich::Vorlage ? text(art) : oft(zufall, 85, art));
    const Bauform* bauform = findBauform(m);
    werte.push_back(oft(zufall, 55, bauform ? bauform->stichwort : ""));
    werte.push_back(oft(zufall, 20, zufall.teil(KOMMENTARE)));
    werte.push_back(
        oft(zufall, 60,
            fmt::format("{}Vorlagen\\Büro_{}.{}", ORDNER, t.tab == Tab::Draft ? "A3" : "Modell", endung(teil))));
    // What a drawing shows is sorted like the model.
    Zufall merkmale{plan_.start(), INHALT, modell(teil), 2};
    fuegeMerkmaleAn(m, merkmale, werte);
    fuegeHauptwerteAn(m, merkmale, werte);
    if (t.tab == Tab::Draft)
        werte.push_back(oft(zufall, 95, format(m.nummer, zufall)));
}

} // namespace quelvarn::sample
