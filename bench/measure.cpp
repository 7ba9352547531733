#include "bench/measure.h"

#include <algorithm>
#include <chrono>

namespace quelvarn::bench {

namespace {

double dauer(const Arbeit& arbeit)
{
    arbeit.vorher();
    const auto beginn = std::chrono::steady_clock::now();
    arbeit.tat();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - beginn).count();
}

double median(std::vector<double> zeiten)
{
    const auto mitte = zeiten.begin() + static_cast<std::ptrdiff_t>(zeiten.size() / 2);
    std::nth_element(zeiten.begin(), mitte, zeiten.end());
    return *mitte;
}

} // namespace

void Messreihe::vergleiche(std::string name, std::optional<double> grenze, const Arbeit& unsere, std::string peer,
                           const Arbeit& andere)
{
    // One run of each beforehand, so that both find the file in the memory of the system.
    if (!andere.laeufe)
        dauer(andere);
    if (!unsere.laeufe)
        dauer(unsere);
    std::vector<double> unsereZeiten;
    std::vector<double> andereZeiten;
    const int unsereLaeufe = unsere.laeufe.value_or(laeufe_);
    const int andereLaeufe = andere.laeufe.value_or(laeufe_);
    for (int lauf = 0; lauf < std::max(unsereLaeufe, andereLaeufe); ++lauf) {
        if (lauf < unsereLaeufe)
            unsereZeiten.push_back(dauer(unsere));
        if (lauf < andereLaeufe)
            andereZeiten.push_back(dauer(andere));
    }
    const double hier = median(unsereZeiten);
    const double dort = median(andereZeiten);
    messungen_.push_back({std::move(name), "ms", hier, std::move(peer), dort, hier / dort, grenze});
}

void Messreihe::begrenze(std::string name, double grenzeMs, const Arbeit& unsere)
{
    std::vector<double> zeiten;
    for (int lauf = 0; lauf < unsere.laeufe.value_or(laeufe_); ++lauf)
        zeiten.push_back(dauer(unsere));
    const double hier = median(zeiten);
    messungen_.push_back({std::move(name), "ms", hier, {}, {}, hier / grenzeMs, grenzeMs});
}

void Messreihe::begrenzeGroesse(std::string name, std::string einheit, double grenze, double wert)
{
    messungen_.push_back({std::move(name), std::move(einheit), wert, {}, {}, wert / grenze, grenze});
}

void Messreihe::vergleicheGroesse(std::string name, std::string einheit, double wert, std::string peer,
                                  double andererWert)
{
    messungen_.push_back(
        {std::move(name), std::move(einheit), wert, std::move(peer), andererWert, wert / andererWert, {}});
}

} // namespace quelvarn::bench
