#include "sample/plan.h"

#include "sample/random.h"
#include "sample/vocabulary.h"

#include <algorithm>

namespace quelvarn::sample {

namespace {

// Kinds of random numbers: each question asks a series of its own.
enum Frage : std::uint64_t { REVISIONEN = 1, AUFBAU = 2, ZEICHNUNG = 3 };

// Of a hundred documents.
constexpr std::uint64_t ANTEIL_NORMTEILE = 7;
constexpr std::uint64_t ANTEIL_KAUFTEILE = 4;
constexpr std::uint64_t ANTEIL_VORRICHTUNGEN = 4;
constexpr std::uint64_t VORLAGEN_HOECHSTENS = 24;
constexpr int TEILE_MINDESTENS = 3; // Of a sub-assembly.
constexpr int TEILE_HOECHSTENS = 7;

constexpr std::array<Bereich, 9> PROJEKTFOLGE{Bereich::Getriebe,      Bereich::Foerderanlage, Bereich::Foerderanlage,
                                              Bereich::Rahmen,        Bereich::Foerderanlage, Bereich::Getriebe,
                                              Bereich::Foerderanlage, Bereich::Rahmen,        Bereich::Foerderanlage};

std::span<const Maschine> maschinen(Bereich bereich)
{
    switch (bereich) {
    case Bereich::Getriebe:
        return getriebe();
    case Bereich::Rahmen:
        return rahmen();
    default:
        return foerderanlagen();
    }
}

std::size_t anzahlTeile(std::string_view auswahl)
{
    return static_cast<std::size_t>(std::ranges::count(auswahl, '|')) + 1;
}

std::string_view teilNummer(std::string_view auswahl, std::uint64_t nummer)
{
    for (; nummer > 0; --nummer)
        auswahl.remove_prefix(auswahl.find('|') + 1);
    return auswahl.substr(0, auswahl.find('|'));
}

std::uint64_t anzahlIn(const Normreihe& reihe)
{
    return anzahlTeile(reihe.groessen) * anzahlTeile(reihe.laengen) * anzahlTeile(reihe.ausfuehrung);
}

} // namespace

Plan::Plan(std::uint64_t dokumente, std::uint64_t start) : start_(start), frei_(dokumente)
{
    teile_.reserve(dokumente * 6 / 10);
    planeVorlagen(std::min(VORLAGEN_HOECHSTENS, dokumente / 80));
    planeNormteile(std::min(anzahlNormteile(), dokumente * ANTEIL_NORMTEILE / 100));
    planeKaufteile(dokumente * ANTEIL_KAUFTEILE / 100);
    planeVorrichtungen(dokumente * ANTEIL_VORRICHTUNGEN / 100);
    std::array<std::uint32_t, 3> laufend{};
    for (std::size_t i = 0; !voll(); ++i) {
        const Bereich bereich = PROJEKTFOLGE[i % PROJEKTFOLGE.size()];
        planeProjekt(bereich, laufend[static_cast<std::size_t>(bereich)]++);
    }
}

std::uint8_t Plan::wuerfleRevisionen(std::uint32_t nummer) const
{
    constexpr std::array<std::uint32_t, 5> BIS_ZU{60, 80, 90, 95, 98}; // of 100 for 1, 2, ... revisions
    const auto wurf = Zufall{start_, REVISIONEN, nummer}.unter(100);
    return static_cast<std::uint8_t>(1 + (std::ranges::upper_bound(BIS_ZU, wurf) - BIS_ZU.begin()));
}

// The number of the item, or KEINES when the register is full.
std::uint32_t Plan::fuegeAn(Teil teil)
{
    if (voll())
        return KEINES;
    teil.revisionen = static_cast<std::uint8_t>(std::min<std::uint64_t>(teil.revisionen, frei_));
    frei_ -= teil.revisionen;
    teile_.push_back(teil);
    return static_cast<std::uint32_t>(teile_.size() - 1);
}

void Plan::planeVorlagen(std::uint64_t anzahl)
{
    for (std::uint32_t i = 0; i < anzahl; ++i)
        fuegeAn({.projekt = i / static_cast<std::uint32_t>(bauteile().size()),
                 .nummer = static_cast<std::uint16_t>(i + 1),
                 .bauform = static_cast<std::uint8_t>(i % bauteile().size()),
                 .bereich = Bereich::Vorlage,
                 .tab = Tab::Draft});
}

// Spread evenly over the catalog, and one drawing that shows many of them.
void Plan::planeNormteile(std::uint64_t anzahl)
{
    for (std::uint64_t i = 0; i < anzahl; ++i)
        normteile_.push_back(fuegeAn({.projekt = static_cast<std::uint32_t>(i * anzahlNormteile() / anzahl),
                                      .bereich = Bereich::Norm,
                                      .tab = Tab::STbl1}));
    if (anzahl >= MODELLE_DER_UEBERSICHT)
        fuegeAn({.bereich = Bereich::Norm, .tab = Tab::Draft});
}

void Plan::planeKaufteile(std::uint64_t anzahl)
{
    for (std::uint32_t i = 0; i < anzahl; ++i)
        kaufteile_.push_back(fuegeAn({.projekt = i,
                                      .bauform = static_cast<std::uint8_t>(i % kaufreihen().size()),
                                      .bereich = Bereich::Kauf,
                                      .tab = Tab::STbl2}));
}

// Each fixture is an assembly, its base plate and a drawing.
void Plan::planeVorrichtungen(std::uint64_t anzahl)
{
    constexpr int GRUNDPLATTE = 10;
    constexpr int ZEICHNUNG_DAZU = 90;
    constexpr std::array<std::uint16_t, 3> NUMMERN{0, GRUNDPLATTE, ZEICHNUNG_DAZU};
    std::uint32_t eltern = KEINES;
    for (std::uint32_t i = 0; i < anzahl; ++i) {
        const auto nummer = NUMMERN[i % NUMMERN.size()];
        const auto teil = fuegeAn({.projekt = i / static_cast<std::uint32_t>(NUMMERN.size()),
                                   .eltern = nummer == 0 ? KEINES : eltern,
                                   .nummer = nummer,
                                   .bauform = static_cast<std::uint8_t>(i / NUMMERN.size() % vorrichtungen().size()),
                                   .bereich = Bereich::Vorrichtung,
                                   .tab = Tab::STbl3});
        eltern = nummer == 0 ? teil : eltern;
    }
}

const Maschine& Plan::maschine(Bereich bereich, std::uint32_t projekt) const
{
    return Zufall{start_, AUFBAU, static_cast<std::uint64_t>(bereich), projekt}.aus(maschinen(bereich));
}

void Plan::planeProjekt(Bereich bereich, std::uint32_t projekt)
{
    const Teil anlage{.projekt = projekt, .bereich = bereich, .tab = Tab::Assemb};
    const auto oberste = planeModell(anlage, 95);
    if (bereich == Bereich::Getriebe && oberste != KEINES)
        getriebe_.push_back(oberste);
    int nummer = 0;
    for (const Baugruppe& vorlage : maschine(bereich, projekt).gruppen) {
        nummer += 100;
        if (vorlage.name.empty())
            continue;
        Teil gruppe = anlage;
        gruppe.eltern = oberste;
        gruppe.nummer = static_cast<std::uint16_t>(nummer);
        const auto index = planeModell(gruppe, 90);
        for (std::size_t u = 0; u < vorlage.unterbaugruppen.size(); ++u)
            if (!vorlage.unterbaugruppen[u].empty())
                planeUnterbaugruppe(gruppe, index, nummer + 10 * static_cast<int>(u + 1), vorlage);
    }
}

// With its drawing, by the given chance of 100.
std::uint32_t Plan::planeModell(Teil teil, std::uint32_t mitZeichnung)
{
    teil.revisionen = wuerfleRevisionen(static_cast<std::uint32_t>(teile_.size()));
    const auto index = fuegeAn(teil);
    planeZeichnung(index, mitZeichnung);
    return index;
}

void Plan::planeUnterbaugruppe(const Teil& gruppe, std::uint32_t eltern, int nummer, const Baugruppe& vorlage)
{
    Zufall zufall{start_, AUFBAU, static_cast<std::uint64_t>(gruppe.bereich), gruppe.projekt,
                  static_cast<std::uint64_t>(nummer)};
    Teil unter = gruppe;
    unter.eltern = eltern;
    unter.nummer = static_cast<std::uint16_t>(nummer);
    const auto index = planeModell(unter, 80);
    const auto anzahl = zufall.zwischen(TEILE_MINDESTENS, TEILE_HOECHSTENS);
    for (int i = 1; i <= anzahl; ++i) {
        const bool blech = zufall.prozent(vorlage.blechlastig ? 60 : 15);
        const auto formen = blech ? blechteile() : gruppe.bereich == Bereich::Getriebe ? zahnradteile() : bauteile();
        Teil teil = unter;
        teil.eltern = index;
        teil.nummer = static_cast<std::uint16_t>(nummer + i);
        teil.bauform = static_cast<std::uint8_t>(zufall.unter(static_cast<std::uint32_t>(formen.size())));
        teil.tab = blech ? Tab::SheetM : Tab::Part;
        planeModell(teil, 60);
    }
    if (!vorlage.geschweisst || index == KEINES)
        return;
    Teil schweissteil = teile_[index];
    schweissteil.eltern = index;
    schweissteil.tab = Tab::Weld;
    planeZeichnung(fuegeAn(schweissteil), 70);
}

void Plan::planeZeichnung(std::uint32_t modell, std::uint32_t wahrscheinlichkeit)
{
    if (modell == KEINES || !Zufall{start_, ZEICHNUNG, modell}.prozent(wahrscheinlichkeit))
        return;
    Teil zeichnung = teile_[modell];
    zeichnung.eltern = modell;
    zeichnung.tab = Tab::Draft;
    fuegeAn(zeichnung);
}

std::uint64_t anzahlNormteile()
{
    std::uint64_t anzahl = 0;
    for (const Normreihe& reihe : normreihen())
        anzahl += anzahlIn(reihe);
    return anzahl;
}

Normteil normteil(std::uint64_t nummer)
{
    std::size_t stelle = 0;
    for (; nummer >= anzahlIn(normreihen()[stelle]); ++stelle)
        nummer -= anzahlIn(normreihen()[stelle]);
    const Normreihe& reihe = normreihen()[stelle];
    const auto ausfuehrungen = anzahlTeile(reihe.ausfuehrung);
    const auto laengen = anzahlTeile(reihe.laengen);
    return {.reihe = stelle,
            .groesse = teilNummer(reihe.groessen, nummer / ausfuehrungen / laengen),
            .laenge = teilNummer(reihe.laengen, nummer / ausfuehrungen % laengen),
            .ausfuehrung = teilNummer(reihe.ausfuehrung, nummer % ausfuehrungen),
            .ersteAusfuehrung = nummer % ausfuehrungen == 0};
}

} // namespace quelvarn::sample
