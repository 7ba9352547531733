#pragma once

#include "database/value.h"
#include "sample/plan.h"

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::sample {

struct Bauform;
class Zufall;

// The last day of the sample register's life: nothing in it is younger.
Zeitpunkt stichtag();

// Everything that a document (an item and one of its revisions) is called and has. The same question gives the
// same answer, whichever table asks it.
class Dokumente
{
public:
    explicit Dokumente(const Plan& plan) : plan_(plan) {}
    const Plan& plan() const { return plan_; }

    std::string dokuBez(std::uint32_t teil) const;
    std::string revBez(std::uint32_t teil, int revision) const;
    std::string dateiname(std::uint32_t teil, int revision) const;
    std::string filename(std::uint32_t teil, int revision) const;
    std::string_view endung(std::uint32_t teil) const;

    int status(std::uint32_t teil, int revision) const;
    std::string projekt(std::uint32_t teil) const;
    Value autor(std::uint32_t teil) const;
    Value bearbeiter(std::uint32_t teil, int revision) const;
    Value material(std::uint32_t teil) const;
    std::string titel(std::uint32_t teil) const;
    Zeitpunkt erstellt(std::uint32_t teil, int revision) const;
    Zeitpunkt geaendert(std::uint32_t teil, int revision) const;

    // A row of its document table, cells in the order of the columns.
    void zeile(std::uint32_t teil, int revision, std::vector<Value>& werte) const;

    // The item that a drawing shows; any other item is its own.
    std::uint32_t modell(std::uint32_t teil) const;

private:
    std::string ordner(const Teil& teil) const;
    std::string stammname(const Teil& teil) const;
    const Bauform* findBauform(const Teil& teil) const;
    std::string_view gruppenname(const Teil& teil) const;
    Value thema(const Teil& teil) const;
    std::string_view kategorie(const Teil& teil, Zufall& zufall) const;
    void fuegeMerkmaleAn(const Teil& teil, Zufall& zufall, std::vector<Value>& werte) const;
    void fuegeHauptwerteAn(const Teil& teil, Zufall& zufall, std::vector<Value>& werte) const;

    const Plan& plan_;
};

} // namespace quelvarn::sample
