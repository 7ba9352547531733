#include "base/collation.h"
#include "database/sql/conditions.h"
#include "filter/document_counter.h"
#include "filter/execution.h"
#include "filter/fragments.h"
#include "filter/user_defined_match.h"
#include "platform/progress.h"
#include "session/error_report.h"

#include <algorithm>

namespace quelvarn {

namespace {

constexpr std::size_t SCHRITTWEITE = 8192;
constexpr std::size_t ALS_ABFRAGEN = 2000; // So many documents are looked up one by one.

// Where the rows of the documents found stand.
struct Fundort
{
    std::string_view tabelle;
    std::string bereich; // The status scope of its readers.
};

struct Fund
{
    Zeilenschluessel zeile = 0; // 0: not found yet
    std::size_t fundort = 0;
};

// One run of the filter for user-defined properties: counts hits per document, then finds the documents' rows.
class BenutzDefLauf
{
public:
    BenutzDefLauf(Filterkontext& kontext, LangeArbeit& arbeit)
        : kontext_(kontext), arbeit_(arbeit), typ_(DOKUTYPEN[static_cast<std::size_t>(kontext.tab)]),
          schritte_(kontext.zustand()), ZusBenutzDef_(kontext.zustand().ZusBenutzDef),
          gesamt_(kontext.table().count() * (schritte_.anzahl() + 1) + SCHRITTWEITE)
    {
        // A special table's documents are looked up among the parts first.
        const bool sonder = typ_.sondertabelle > 0;
        const std::string& WhereStatus = kontext.session.rights.WhereStatus;
        fundorte_.push_back({sonder ? DOKUTYPEN[0].tabelle : typ_.tabelle, WhereStatus});
        if (sonder)
            fundorte_.push_back({typ_.tabelle, ""});
    }

    // Nothing when it was given up.
    std::optional<Recordset> fuehreAus()
    {
        if (schritte_.anzahl() > 0 && (!zaehleTreffer() || !sucheDokumente()))
            return std::nullopt;
        return ergebnis();
    }

private:
    Connection& verbindung() const { return kontext_.session.database.Verbindung; }

    bool weiter()
    {
        if (++gelesen_ % SCHRITTWEITE != 0)
            return true;
        return arbeit_(std::min(gelesen_, gesamt_), gesamt_);
    }

    // --- rows of properties ---
    bool zaehleTreffer()
    {
        for (sql::AusdruckZeiger& bedingung : schritte_.vorauswahl())
            if (!zaehleTreffer(std::move(bedingung)))
                return false;
        return true;
    }

    bool zaehleTreffer(sql::AusdruckZeiger bedingung)
    {
        sql::Select select;
        select.tabelle = typ_.tabelleBenutzDef;
        select.spalten = {"DokuBez", "RevBez", "Name", "Wert"};
        select.where = sql::all(std::move(bedingung), sql::statusScope(kontext_.session.rights.WhereStatus));
        for (const AdditionalValue& value : ZusBenutzDef_)
            select.where = sql::all(std::move(select.where), valueCondition(ZUSATZSPALTEN[value.column], value.Wert));
        const auto zeilen = verbindung().engine().lese(select, MitSchluessel::Nein);
        while (zeilen->next()) {
            if (!weiter())
                return false;
            if (schritte_.trifft(zeilen->text(2), zeilen->text(3)))
                dokumente_.zaehle(zeilen->text(0), zeilen->text(1));
        }
        return true;
    }

    // --- rows of documents ---
    // A document whose count passes the number of steps has reached it before.
    bool gesucht(Dokumentzaehler::Nummer nummer) const
    {
        return dokumente_.zaehler(nummer) >= schritte_.anzahl() && funde_[nummer].zeile == 0;
    }

    bool sucheDokumente()
    {
        funde_.resize(dokumente_.anzahl());
        for (std::size_t fundort = 0; fundort < fundorte_.size(); ++fundort) {
            std::vector<Dokumentzaehler::Nummer> offene;
            for (Dokumentzaehler::Nummer nummer = 0; nummer < dokumente_.anzahl(); ++nummer)
                if (gesucht(nummer))
                    offene.push_back(nummer);
            if (offene.empty())
                break;
            if (!(offene.size() <= ALS_ABFRAGEN ? sucheEinzeln(fundort, offene) : sucheImGanzen(fundort)))
                return false;
        }
        return true;
    }

    // A fault has its box; OK goes on with the documents behind.
    bool sucheEinzeln(std::size_t fundort, const std::vector<Dokumentzaehler::Nummer>& offene)
    {
        bool weitergehen = true;
        einDurchgang_ = false;
        std::vector<sql::AusdruckZeiger> dokumente;
        for (const Dokumentzaehler::Nummer nummer : offene)
            dokumente.push_back(sql::all(sql::equal("DokuBez", dokumente_.DokuBez(nummer)),
                                         sql::equal("RevBez", dokumente_.RevBez(nummer))));
        for (sql::AusdruckZeiger& einige : sql::chunks(std::move(dokumente))) {
            gesichertKopiert([&] { weitergehen = nimmZeilen(fundort, std::move(einige)); });
            if (!weitergehen)
                return false;
        }
        return true;
    }

    bool sucheImGanzen(std::size_t fundort)
    {
        bool weitergehen = true;
        einDurchgang_ = gefundene_.empty();
        gesichertKopiert([&] { weitergehen = nimmZeilen(fundort, nullptr); });
        return weitergehen;
    }

    bool gesichertKopiert(const std::function<void()>& tat)
    {
        return gesichert(kontext_.ports().meldungen, "SE-ModFiltern: Erstellen der Filtertabelle BenutzDef",
                         "Fehler beim Erstellen der Filtertabelle BenutzDef", tat);
    }

    // Of several rows of one document the first counts.
    bool nimmZeilen(std::size_t fundort, sql::AusdruckZeiger bedingung)
    {
        sql::Select select;
        select.tabelle = fundorte_[fundort].tabelle;
        select.spalten = {"DokuBez", "RevBez"};
        select.where = sql::all(std::move(bedingung), sql::statusScope(fundorte_[fundort].bereich));
        select.orderBy = {{"DokuBez", false}, {"RevBez", true}}; // As the index has it.
        const auto zeilen = verbindung().engine().lese(select, MitSchluessel::Ja);
        while (zeilen->next()) {
            if (!weiter())
                return false;
            const auto nummer = dokumente_.finde(zeilen->text(0), zeilen->text(1));
            if (!nummer)
                continue;
            Fund& fund = funde_[*nummer];
            if (gesucht(*nummer))
                gefundene_.push_back(*nummer);
            else if (fund.zeile == 0 || fund.fundort != fundort || fund.zeile < zeilen->schluessel())
                continue;
            fund = {zeilen->schluessel(), fundort};
        }
        return true;
    }

    // --- the result ---
    // By document, older revisions first. One pass over all brought the documents in order already, their revisions
    // the other way round.
    void ordne()
    {
        const auto bezeichnung = [&](Dokumentzaehler::Nummer nummer) { return dokumente_.DokuBez(nummer); };
        if (!einDurchgang_) {
            std::ranges::sort(gefundene_, [&](auto links, auto rechts) {
                const int vergleich = compareText(bezeichnung(links), bezeichnung(rechts));
                return vergleich != 0 ? vergleich < 0
                                      : compareText(dokumente_.RevBez(links), dokumente_.RevBez(rechts)) < 0;
            });
            return;
        }
        for (auto erste = gefundene_.begin(); erste != gefundene_.end();) {
            const auto ende = std::find_if(erste + 1, gefundene_.end(), [&](Dokumentzaehler::Nummer nummer) {
                return !equalText(bezeichnung(nummer), bezeichnung(*erste));
            });
            std::reverse(erste, ende);
            erste = ende;
        }
    }

    std::optional<Recordset> ergebnis()
    {
        ordne();
        std::size_t eigener = 0;
        std::vector<Zeilenschluessel> schluessel;
        for (const Dokumentzaehler::Nummer nummer : gefundene_) {
            schluessel.push_back(funde_[nummer].zeile);
            eigener += funde_[nummer].fundort;
        }
        Recordset recordset;
        if (eigener != 0 && eigener != gefundene_.size())
            return gemischt();
        recordset.OpenZeilen(fundorte_[eigener == 0 ? 0 : 1].tabelle, std::move(schluessel), verbindung());
        return recordset;
    }

    // Rows of two tables make a recordset in memory.
    std::optional<Recordset> gemischt()
    {
        std::array<Recordset, 2> quellen;
        for (std::size_t fundort = 0; fundort < fundorte_.size(); ++fundort) {
            std::vector<Zeilenschluessel> schluessel;
            for (const Dokumentzaehler::Nummer nummer : gefundene_)
                if (funde_[nummer].fundort == fundort)
                    schluessel.push_back(funde_[nummer].zeile);
            quellen[fundort].OpenZeilen(fundorte_[fundort].tabelle, std::move(schluessel), verbindung());
        }
        Recordset ziel;
        for (const Spalte& feld : quellen[1].Felder())
            if (quellen[0].hatFeld(feld.name))
                ziel.FeldAnhaengen(feld.name, feld.typ);
        ziel.Open();
        for (const Dokumentzaehler::Nummer nummer : gefundene_) {
            if (!weiter())
                return std::nullopt;
            Recordset& quelle = quellen[funde_[nummer].fundort];
            if (!gesichertKopiert([&] { kopiere(quelle, ziel); }))
                ziel.CancelUpdate();
            quelle.MoveNext();
        }
        if (ziel.RecordCount() > 0)
            ziel.MoveFirst();
        return ziel;
    }

    static void kopiere(const Recordset& quelle, Recordset& ziel)
    {
        ziel.AddNew();
        for (const Spalte& feld : ziel.Felder())
            ziel.setzeFeld(feld.name, quelle.Feld(feld.name));
        ziel.Update();
    }

    Filterkontext& kontext_;
    LangeArbeit& arbeit_;
    const DokuTyp& typ_;
    BenutzDefSchritte schritte_;
    const std::vector<AdditionalValue>& ZusBenutzDef_;
    std::vector<Fundort> fundorte_;
    Dokumentzaehler dokumente_;
    std::vector<Fund> funde_;
    std::vector<Dokumentzaehler::Nummer> gefundene_;
    bool einDurchgang_ = false;
    std::size_t gelesen_ = 0;
    std::size_t gesamt_; // About.
};

} // namespace

std::optional<Recordset> ApplyBenutzDefFilter(Filterkontext& kontext)
{
    kontext.table(); // Opening it has a progress of its own.
    LangeArbeit arbeit(kontext.ports().fortschritt, "Benutzerdefinierte Eigenschaften werden gefiltert ...");
    return BenutzDefLauf(kontext, arbeit).fuehreAus();
}

} // namespace quelvarn
