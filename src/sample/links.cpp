#include "sample/random.h"
#include "sample/sample_register.h"
#include "sample/vocabulary.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn::sample {

namespace {

enum Frage : std::uint64_t { NORMTEILE = 60, ZWEITES_MODELL, ZUSATZ, TIFF, GETRIEBEWAHL };

using Zeile = std::vector<Value>;

// The revision of a part that this revision of its assembly was built with: the newest with the newest.
int eingebauteRevision(const Teil& baugruppe, int revision, const Teil& teil)
{
    if (revision + 1 >= baugruppe.revisionen)
        return teil.revisionen - 1;
    return (teil.revisionen - 1) * revision / (baugruppe.revisionen - 1);
}

void fuegeDokumentAn(Zeile& zeile, const Dokumente& dokumente, std::uint32_t teil, int revision)
{
    zeile.emplace_back(dokumente.dokuBez(teil));
    zeile.emplace_back(dokumente.revBez(teil, revision));
    zeile.emplace_back(dokumente.dateiname(teil, revision));
    zeile.emplace_back(dokumente.filename(teil, revision));
}

// One row for each revision of the assembly.
void baueEin(const Dokumente& dokumente, std::uint32_t baugruppe, std::uint32_t teil, Zeilensenke& senke)
{
    const Teil& eltern = dokumente.plan().teil(baugruppe);
    for (int revision = 0; revision < eltern.revisionen; ++revision) {
        Zeile zeile;
        fuegeDokumentAn(zeile, dokumente, baugruppe, revision);
        zeile.emplace_back(dokumente.filename(teil, eingebauteRevision(eltern, revision, dokumente.plan().teil(teil))));
        senke.zeile(zeile);
    }
}

void baueNormUndKaufteileEin(const Dokumente& dokumente, std::uint32_t baugruppe, Zeilensenke& senke)
{
    const Plan& plan = dokumente.plan();
    Zufall zufall{plan.start(), NORMTEILE, baugruppe};
    const auto nimm = [&](const std::vector<std::uint32_t>& auswahl, std::int64_t anzahl) {
        std::vector<std::uint32_t> gewaehlt;
        for (; anzahl > 0 && !auswahl.empty(); --anzahl)
            gewaehlt.push_back(zufall.aus(auswahl));
        std::ranges::sort(gewaehlt);
        gewaehlt.erase(std::unique(gewaehlt.begin(), gewaehlt.end()), gewaehlt.end());
        for (const auto teil : gewaehlt)
            baueEin(dokumente, baugruppe, teil, senke);
    };
    nimm(plan.normteile(), zufall.zwischen(2, 6));
    nimm(plan.kaufteile(), zufall.zwischen(0, 2));
}

// The assembly that a part goes into: a weldment takes the place of its model.
std::uint32_t einbauort(const Plan& plan, const Teil& teil)
{
    return teil.tab == Tab::Weld ? plan.teil(teil.eltern).eltern : teil.eltern;
}

void modellzeile(const Dokumente& dokumente, std::uint32_t dokument, int revision, std::uint32_t modell,
                 Zeilensenke& senke)
{
    const int modellrevision = std::min(revision, dokumente.plan().teil(modell).revisionen - 1);
    Zeile zeile;
    fuegeDokumentAn(zeile, dokumente, dokument, revision);
    zeile.emplace_back(dokumente.dateiname(modell, modellrevision));
    zeile.emplace_back(dokumente.filename(modell, modellrevision));
    senke.zeile(zeile);
}

} // namespace

void schreibeZusBauPart(const Dokumente& dokumente, Zeilensenke& senke)
{
    const Plan& plan = dokumente.plan();
    for (std::uint32_t i = 0; i < plan.teile().size(); ++i) {
        const Teil& teil = plan.teil(i);
        if (teil.tab == Tab::Assemb && teil.nummer % 100 != 0)
            baueNormUndKaufteileEin(dokumente, i, senke);
        const bool einzelteil = teil.tab == Tab::Part || teil.tab == Tab::SheetM || teil.tab == Tab::Weld ||
                                (teil.tab == Tab::STbl3 && dokumente.endung(i) == "par");
        if (einzelteil && einbauort(plan, teil) != KEINES)
            baueEin(dokumente, einbauort(plan, teil), i, senke);
    }
}

void schreibeZusBauSubAss(const Dokumente& dokumente, Zeilensenke& senke)
{
    constexpr int ANTRIEBSEINHEIT = 110;
    const Plan& plan = dokumente.plan();
    for (std::uint32_t i = 0; i < plan.teile().size(); ++i) {
        const Teil& teil = plan.teil(i);
        if (teil.tab != Tab::Assemb)
            continue;
        if (teil.eltern != KEINES)
            baueEin(dokumente, teil.eltern, i, senke);
        if (teil.bereich == Bereich::Foerderanlage && teil.nummer == ANTRIEBSEINHEIT && !plan.getriebe().empty())
            baueEin(dokumente, i, Zufall{plan.start(), GETRIEBEWAHL, i}.aus(plan.getriebe()), senke);
    }
}

void schreibeVerbindungDraftPart(const Dokumente& dokumente, Zeilensenke& senke)
{
    const Plan& plan = dokumente.plan();
    fuerJedesDokument(dokumente, [&](std::uint32_t i, int revision) {
        const Teil& teil = plan.teil(i);
        if (teil.tab == Tab::Draft && teil.bereich == Bereich::Norm)
            for (std::size_t k = 0; k < MODELLE_DER_UEBERSICHT; ++k)
                modellzeile(dokumente, i, revision, plan.normteile()[k], senke);
        const bool zeichnung = teil.tab == Tab::Draft || (teil.tab == Tab::STbl3 && dokumente.endung(i) == "dft");
        if (!zeichnung || teil.eltern == KEINES)
            return;
        modellzeile(dokumente, i, revision, teil.eltern, senke);
        const auto baugruppe = plan.teil(teil.eltern).eltern;
        if (baugruppe != KEINES && Zufall{plan.start(), ZWEITES_MODELL, i}.prozent(6))
            modellzeile(dokumente, i, revision, baugruppe, senke);
    });
}

void schreibeVerbindungWeldAssemb(const Dokumente& dokumente, Zeilensenke& senke)
{
    fuerJedesDokument(dokumente, [&](std::uint32_t i, int revision) {
        const Teil& teil = dokumente.plan().teil(i);
        if (teil.tab == Tab::Weld)
            modellzeile(dokumente, i, revision, teil.eltern, senke);
    });
}

std::vector<ZusaetzlichesDokument> zusaetzlicheDokumente(const Dokumente& dokumente, std::uint32_t teil, int revision)
{
    constexpr std::string_view ARTEN =
        "Datenblatt.pdf|Prüfprotokoll.pdf|Berechnung.xls|Montageanleitung.doc|Hinweise.txt|Schaltplan.pdf|"
        "Skizze.tif";
    Zufall zufall{dokumente.plan().start(), ZUSATZ, teil, static_cast<std::uint64_t>(revision)};
    std::vector<ZusaetzlichesDokument> ergebnis;
    if (!zufall.prozent(6))
        return ergebnis;
    for (auto anzahl = zufall.zwischen(1, 3); anzahl > 0; --anzahl) {
        ZusaetzlichesDokument neu{.dateiname = fmt::format("{} {}", dokumente.dokuBez(teil), zufall.teil(ARTEN)),
                                  .filename = {},
                                  .mitsenden = zufall.prozent(40)};
        neu.filename = fmt::format("{}Zusatzdokumente\\{}\\{}", ORDNER, dokumente.projekt(teil), neu.dateiname);
        if (std::ranges::none_of(ergebnis, [&](const auto& d) { return d.dateiname == neu.dateiname; }))
            ergebnis.push_back(std::move(neu));
    }
    return ergebnis;
}

void schreibeVerbindungPartZusDoku(const Dokumente& dokumente, Zeilensenke& senke)
{
    fuerJedesDokument(dokumente, [&](std::uint32_t teil, int revision) {
        if (dokumente.plan().teil(teil).tab > Tab::Weld)
            return;
        for (const auto& zusatz : zusaetzlicheDokumente(dokumente, teil, revision))
            senke.zeile(Zeile{dokumente.filename(teil, revision), zusatz.dateiname,
                              zusatz.filename + (zusatz.mitsenden ? "/J" : "")});
    });
}

std::string tiffDatei(const Dokumente& dokumente, std::uint32_t teil, int revision)
{
    const bool vorhanden =
        dokumente.plan().teil(teil).tab == Tab::Draft &&
        Zufall{dokumente.plan().start(), TIFF, teil, static_cast<std::uint64_t>(revision)}.prozent(30);
    const std::string name = dokumente.dateiname(teil, revision);
    return vorhanden ? fmt::format("{}TIFF\\{}tif", ORDNER, name.substr(0, name.size() - 3)) : "";
}

void schreibeTIFFTabelle(const Dokumente& dokumente, Zeilensenke& senke)
{
    fuerJedesDokument(dokumente, [&](std::uint32_t teil, int revision) {
        const std::string datei = tiffDatei(dokumente, teil, revision);
        if (!datei.empty())
            senke.zeile(Zeile{datei.substr(datei.rfind('\\') + 1), datei});
    });
}

} // namespace quelvarn::sample
