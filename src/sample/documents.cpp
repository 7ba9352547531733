#include "sample/documents.h"

#include "sample/random.h"
#include "sample/vocabulary.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn::sample {

namespace {

enum Frage : std::uint64_t { NAMEN = 20, STATUSWURF, PERSONEN, ZEITEN };

std::string revisionsname(std::uint32_t art, int revision)
{
    if (art == 3)
        return fmt::format("{:02}", revision);
    if (revision == 0)
        return "0";
    if (art == 1)
        return std::to_string(revision);
    return std::string(1, static_cast<char>((art == 2 ? 'a' : 'A') + revision - 1));
}

constexpr std::array<std::string_view, ANZAHL_STATUS> ALTE_STATI{"5", "5", "5", "5", "4", "3"};

// Of a hundred: what the newest revision of a document is.
int neuesterStatus(std::uint32_t wurf)
{
    constexpr std::array<std::uint32_t, ANZAHL_STATUS> BIS_ZU{8, 21, 29, 78, 97, 100};
    return static_cast<int>(std::ranges::upper_bound(BIS_ZU, wurf) - BIS_ZU.begin());
}

Zeitpunkt arbeitszeit(Zeitpunkt tag, Zufall& zufall)
{
    constexpr std::int64_t VON = std::int64_t{6} * 3600 + 1800;
    constexpr std::int64_t BIS = std::int64_t{17} * 3600;
    return tag.tagesbeginn().plusSekunden(zufall.zwischen(VON, BIS));
}

bool istDatei(const Teil& teil)
{
    return teil.tab <= Tab::Weld;
}

} // namespace

Zeitpunkt stichtag()
{
    return Zeitpunkt::aus({2025, 12, 19, 17, 0, 0});
}

std::uint32_t Dokumente::modell(std::uint32_t teil) const
{
    const Teil& eintrag = plan_.teil(teil);
    return eintrag.tab == Tab::Draft && eintrag.eltern != KEINES ? eintrag.eltern : teil;
}

std::string Dokumente::dokuBez(std::uint32_t teil) const
{
    const Teil& t = plan_.teil(teil);
    switch (t.bereich) {
    case Bereich::Foerderanlage:
    case Bereich::Getriebe:
    case Bereich::Rahmen: {
        const bool geschweisst = plan_.teil(modell(teil)).tab == Tab::Weld;
        return fmt::format("{}-{:03}{}", projekt(teil), t.nummer, geschweisst ? "S" : "");
    }
    case Bereich::Norm: {
        if (t.tab == Tab::Draft)
            return "NT-Übersicht";
        const Normteil norm = normteil(t.projekt);
        const Normreihe& reihe = normreihen()[norm.reihe];
        return fmt::format("{} - {}{}{}{}", reihe.norm, reihe.vorsatz, norm.groesse,
                           norm.laenge.empty() ? "" : fmt::format("x{}", norm.laenge),
                           norm.ersteAusfuehrung ? "" : fmt::format("-{}", norm.ausfuehrung));
    }
    case Bereich::Kauf:
        return fmt::format("{} {}-{:04}", kaufreihen()[t.bauform].kuerzel,
                           Zufall{plan_.start(), NAMEN, teil}.teil(kaufreihen()[t.bauform].groessen), t.projekt + 1);
    case Bereich::Vorrichtung:
        return fmt::format("VR-{:04}-{:03}", t.projekt + 1, t.nummer);
    case Bereich::Vorlage:
        break;
    }
    return fmt::format("VL-{:03}", t.nummer);
}

std::string Dokumente::projekt(std::uint32_t teil) const
{
    const Teil& t = plan_.teil(teil);
    switch (t.bereich) {
    case Bereich::Foerderanlage:
        return fmt::format("FA-{}", 1001 + t.projekt);
    case Bereich::Getriebe:
        return fmt::format("GT-{:04}", 301 + t.projekt);
    case Bereich::Rahmen:
        return fmt::format("RA-{:04}", 701 + t.projekt);
    case Bereich::Norm:
        return "Normteile";
    case Bereich::Kauf:
        return "Zukaufteile";
    case Bereich::Vorrichtung:
        return "Betriebsmittel";
    case Bereich::Vorlage:
        break;
    }
    return "Vorlagen";
}

// Each project keeps to one way of counting revisions.
std::string Dokumente::revBez(std::uint32_t teil, int revision) const
{
    const Teil& t = plan_.teil(teil);
    Zufall zufall{plan_.start(), NAMEN, static_cast<std::uint64_t>(t.bereich), t.projekt};
    return revisionsname(t.bereich <= Bereich::Rahmen ? zufall.unter(4) : 0, revision);
}

std::string_view Dokumente::endung(std::uint32_t teil) const
{
    const Teil& t = plan_.teil(teil);
    if (istDatei(t))
        return DOKUTYPEN[static_cast<std::size_t>(t.tab)].endung;
    if (t.tab != Tab::STbl3)
        return "par";
    return t.nummer == 0 ? "asm" : t.nummer == 10 ? "par" : "dft";
}

std::string Dokumente::stammname(const Teil& teil) const
{
    const auto nummer = static_cast<std::uint32_t>(&teil - plan_.teile().data());
    return teil.bereich == Bereich::Vorlage ? fmt::format("{} {}", dokuBez(nummer), bauteile()[teil.bauform].name)
                                            : dokuBez(nummer);
}

std::string Dokumente::dateiname(std::uint32_t teil, int revision) const
{
    std::string stamm = stammname(plan_.teil(teil));
    std::ranges::replace(stamm, '/', '_'); // Windows has no such file names.
    if (revision > 0)
        stamm += "_" + revBez(teil, revision);
    return fmt::format("{}.{}", stamm, endung(teil));
}

std::string Dokumente::filename(std::uint32_t teil, int revision) const
{
    return fmt::format("{}{}\\{}", ORDNER, ordner(plan_.teil(teil)), dateiname(teil, revision));
}

std::string Dokumente::ordner(const Teil& teil) const
{
    const auto nummer = static_cast<std::uint32_t>(&teil - plan_.teile().data());
    const auto gruppe = [&] {
        return teil.nummer < 100 ? "" : fmt::format("\\{} {}", teil.nummer / 100 * 100, gruppenname(teil));
    };
    switch (teil.bereich) {
    case Bereich::Foerderanlage:
        return fmt::format("Förderanlagen\\{} {}{}", projekt(nummer), plan_.maschine(teil.bereich, teil.projekt).name,
                           gruppe());
    case Bereich::Getriebe:
        return fmt::format("Getriebe\\{} {}", projekt(nummer), plan_.maschine(teil.bereich, teil.projekt).name);
    case Bereich::Rahmen:
        return fmt::format("Rahmen\\{}", projekt(nummer));
    case Bereich::Norm: {
        const Normreihe& reihe = normreihen()[normteil(teil.projekt).reihe];
        std::string norm(reihe.norm);
        std::ranges::replace(norm, ' ', '_');
        return fmt::format("Normteile\\{}\\{}", reihe.gruppe, norm);
    }
    case Bereich::Kauf: {
        std::string hersteller(kaufreihen()[teil.bauform].hersteller);
        std::ranges::replace(hersteller, ' ', '_');
        return fmt::format("Zukaufteile\\{}", hersteller);
    }
    case Bereich::Vorrichtung:
        return fmt::format("Vorrichtungen\\VR-{:04}", teil.projekt + 1);
    case Bereich::Vorlage:
        break;
    }
    return "Vorlagen\\Zeichnungen";
}

std::string_view Dokumente::gruppenname(const Teil& teil) const
{
    return plan_.maschine(teil.bereich, teil.projekt).gruppen[teil.nummer / 100 - 1].name;
}

// Old revisions are void or frozen; a drawing stands where its model stands.
int Dokumente::status(std::uint32_t teil, int revision) const
{
    const auto quelle = modell(teil);
    const Teil& t = plan_.teil(quelle);
    Zufall zufall{plan_.start(), STATUSWURF, quelle, static_cast<std::uint64_t>(revision)};
    if (revision + 1 < t.revisionen)
        return zufall.aus(ALTE_STATI)[0] - '0';
    if (t.tab >= Tab::STbl1)
        return zufall.prozent(90) ? 4 : 3;
    return neuesterStatus(zufall.unter(100));
}

Value Dokumente::autor(std::uint32_t teil) const
{
    const Teil& t = plan_.teil(teil);
    Zufall zufall{plan_.start(), PERSONEN, static_cast<std::uint64_t>(t.bereich), t.projekt,
                  static_cast<std::uint64_t>(t.nummer / 100)};
    return std::string(zufall.aus(KONSTRUKTEURE));
}

Value Dokumente::bearbeiter(std::uint32_t teil, int revision) const
{
    Zufall zufall{plan_.start(), PERSONEN, teil, static_cast<std::uint64_t>(revision)};
    const auto wurf = zufall.unter(100);
    if (wurf < 60)
        return autor(teil);
    if (wurf < 90)
        return std::string(zufall.aus(KONSTRUKTEURE));
    return wurf < 96 ? Value{} : Value{std::string(wurf < 98 ? "" : " ")};
}

Zeitpunkt Dokumente::erstellt(std::uint32_t teil, int revision) const
{
    const auto quelle = modell(teil);
    const Teil& t = plan_.teil(quelle);
    constexpr std::int64_t TAGE_DES_REGISTERS = std::int64_t{26} * 365;
    Zufall projektzeit{plan_.start(), ZEITEN, static_cast<std::uint64_t>(t.bereich), t.projekt};
    Zufall zufall{plan_.start(), ZEITEN, quelle};
    const auto beginn = stichtag().plusTage(-TAGE_DES_REGISTERS + projektzeit.zwischen(0, TAGE_DES_REGISTERS - 200));
    const auto tage = t.nummer / 10 + zufall.zwischen(0, 20) + revision * zufall.zwischen(30, 260);
    return std::min(arbeitszeit(beginn.plusTage(tage), zufall), stichtag().plusTage(revision - 40));
}

// What is being worked on was changed lately.
Zeitpunkt Dokumente::geaendert(std::uint32_t teil, int revision) const
{
    Zufall zufall{plan_.start(), ZEITEN, teil, static_cast<std::uint64_t>(revision)};
    const Zeitpunkt anfang = erstellt(teil, revision);
    const int stand = status(teil, revision);
    if (stand == 1 || stand == 2)
        return arbeitszeit(stichtag().plusTage(-zufall.zwischen(0, 30)), zufall);
    return std::max(anfang.plusSekunden(600), arbeitszeit(anfang.plusTage(zufall.zwischen(0, 15)), zufall));
}

} // namespace quelvarn::sample
