#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quelvarn::bench {

// One figure with what it must not exceed.
struct Messung
{
    std::string name;
    std::string einheit = "ms";
    double median = 0;
    std::optional<std::string> peer; // What it is compared with; nothing for a bound of its own.
    std::optional<double> peerMedian;
    double verhaeltnis = 0;       // To the peer, or to the bound itself.
    std::optional<double> grenze; // Of the ratio with a peer; otherwise in the unit of the figure. Nothing: to compare.
    bool gehalten() const { return !grenze || verhaeltnis <= (peer ? *grenze : 1.0); }
};

// A piece of work to be timed, with what has to be got ready before each run.
struct Arbeit
{
    std::function<void()> tat;
    std::function<void()> vorher = [] {};
    std::optional<int> laeufe; // Instead of those of the series: for what is very short, or takes very long.
};

// Takes the figures of one run of the program.
class Messreihe
{
public:
    Messreihe(int laeufe, bool vieleDokumente) : laeufe_(laeufe), vieleDokumente_(vieleDokumente) {}

    // Of work that grows with the documents: with few of them, what each run costs at least would decide.
    std::optional<double> beiVielen(double grenze) const
    {
        return vieleDokumente_ ? std::optional(grenze) : std::nullopt;
    }

    // The median of our time against that of the peer; the two take turns.
    void vergleiche(std::string name, std::optional<double> grenze, const Arbeit& unsere, std::string peer,
                    const Arbeit& andere);
    void begrenze(std::string name, double grenzeMs, const Arbeit& unsere);
    void begrenzeGroesse(std::string name, std::string einheit, double grenze, double wert);
    void vergleicheGroesse(std::string name, std::string einheit, double wert, std::string peer, double andererWert);

    const std::vector<Messung>& messungen() const { return messungen_; }

private:
    int laeufe_;
    bool vieleDokumente_;
    std::vector<Messung> messungen_;
};

} // namespace quelvarn::bench
