#include "base/collation.h"
#include "database/document_types.h"
#include "documents/document_record.h"
#include "register/document_facts.h"
#include "register/info_pages.h"

#include <fmt/format.h>

namespace quelvarn {
namespace {

bool istBekannt(int status)
{
    return status >= 0 && status < ANZAHL_STATUS;
}

std::string datumOderLeer(Zeitpunkt datum)
{
    return datum == Zeitpunkt{} ? std::string() : formatDatum(datum);
}

std::string yesNo(const DocumentFacts& facts, InfoSeite relation)
{
    if (!facts.relationsAsked)
        return {};
    return facts.has(relation) ? "Ja" : "Nein";
}

void fuelleVerwendung(AllgemeineSeite& seite, const DokuRecord& record, const DocumentFacts& facts, const DokuTyp& typ)
{
    const bool zeichnung = typ.schluessel == "Draft";
    seite.kopf39 = zeichnung ? "Modell:" : "Zeichnung:";
    seite.wert40 = yesNo(facts, zeichnung ? InfoSeite::Enthaelt : InfoSeite::InZeichnung);
    if (!zeichnung) {
        seite.kopf8 = "Eingebaut:";
        seite.wert9 = yesNo(facts, InfoSeite::InBaugruppe);
    } else if (!record.F_05_leer.empty()) {
        seite.kopf8 = "Format:";
        seite.wert9 = record.F_05_leer;
    }
}

} // namespace

AllgemeineSeite allgemeineSeite(const DokuRecord& record, const DocumentFacts& facts, const DokuTyp& typ,
                                bool verwendung, bool dateiVorhanden)
{
    AllgemeineSeite seite;
    seite.leer = false;
    seite.DokuBez = record.DokuBez;
    seite.RevBez = record.RevBez;
    seite.Dateiname = record.Dateiname;
    seite.filename = record.filename;
    seite.Status = std::to_string(record.Status);
    if (istBekannt(record.Status)) {
        seite.StatusName = STATUS[record.Status].inKlammer;
        seite.statusfarbe = STATUS[record.Status].farbe;
    }
    seite.Titel = record.Titel;
    seite.Thema = record.Thema;
    seite.Projekt = record.Projekt;
    seite.Material = record.Material;
    seite.Firma = record.Firma;
    seite.Kategorie = record.Kategorie;
    seite.Manager = record.Manager;
    seite.Geaendert = datumOderLeer(record.Geaendert);
    seite.Bearbeiter = record.Bearbeiter;
    seite.Erstellt = datumOderLeer(record.Erstellt);
    seite.Autor = record.Autor;
    if (verwendung)
        fuelleVerwendung(seite, record, facts, typ);
    seite.nichtVorhanden = !dateiVorhanden;
    seite.neuereRevision = facts.newerRevision;
    return seite;
}

Statuskopf statuskopf(const DokuRecord& record, const std::string& anwender, unsigned bisherigeFarbe)
{
    Statuskopf kopf;
    kopf.farbe = istBekannt(record.Status) ? STATUS[record.Status].farbe : bisherigeFarbe;
    kopf.breit = record.Status == 1 && !equalText(record.Bearbeiter, anwender);
    kopf.text =
        kopf.breit ? fmt::format("<{}> 'In Arbeit'", record.Bearbeiter) : fmt::format("{} Status ", record.Status);
    return kopf;
}

} // namespace quelvarn
