#include "register/general_page.h"

#include "base/collation.h"
#include "database/document_types.h"
#include "documents/document_record.h"
#include "register/document_facts.h"
#include "register/info_pages.h"

#include <fmt/format.h>

namespace quelvarn {
namespace {

bool isKnown(int status)
{
    return status >= 0 && status < STATUS_COUNT;
}

std::string dateOrEmpty(DateTime date)
{
    return date == DateTime{} ? std::string() : formatDate(date);
}

std::string yesNo(const DocumentFacts& facts, InfoPageId relation)
{
    if (!facts.relationsAsked)
        return {};
    return facts.has(relation) ? "Ja" : "Nein";
}

void fillRelation(GeneralPage& page, const DokuRecord& record, const DocumentFacts& facts, const DocumentType& type)
{
    const bool drawing = type.key == "Draft";
    page.heading39 = drawing ? "Modell:" : "Zeichnung:";
    page.value40 = yesNo(facts, drawing ? InfoPageId::Contains : InfoPageId::InDrawing);
    if (!drawing) {
        page.heading8 = "Eingebaut:";
        page.value9 = yesNo(facts, InfoPageId::InAssembly);
    } else if (!record.F_05_leer.empty()) {
        page.heading8 = "Format:";
        page.value9 = record.F_05_leer;
    }
}

} // namespace

GeneralPage generalPage(const DokuRecord& record, const DocumentFacts& facts, const DocumentType& type, bool relation,
                        bool fileExists)
{
    GeneralPage page;
    page.empty = false;
    page.DokuBez = record.DokuBez;
    page.RevBez = record.RevBez;
    page.Dateiname = record.Dateiname;
    page.filename = record.filename;
    page.Status = std::to_string(record.Status);
    if (isKnown(record.Status)) {
        page.StatusName = STATUS[record.Status].inBracket;
        page.statusColour = STATUS[record.Status].colour;
    }
    page.Titel = record.Titel;
    page.Thema = record.Thema;
    page.Projekt = record.Projekt;
    page.Material = record.Material;
    page.Firma = record.Firma;
    page.Kategorie = record.Kategorie;
    page.Manager = record.Manager;
    page.Geaendert = dateOrEmpty(record.Geaendert);
    page.Bearbeiter = record.Bearbeiter;
    page.Erstellt = dateOrEmpty(record.Erstellt);
    page.Autor = record.Autor;
    if (relation)
        fillRelation(page, record, facts, type);
    page.missing = !fileExists;
    page.newerRevision = facts.newerRevision;
    return page;
}

StatusHeading statusHeading(const DokuRecord& record, const std::string& user, unsigned previousColour)
{
    StatusHeading heading;
    heading.colour = isKnown(record.Status) ? STATUS[record.Status].colour : previousColour;
    heading.wide = record.Status == 1 && !equalText(record.Bearbeiter, user);
    heading.text =
        heading.wide ? fmt::format("<{}> 'In Arbeit'", record.Bearbeiter) : fmt::format("{} Status ", record.Status);
    return heading;
}

} // namespace quelvarn
