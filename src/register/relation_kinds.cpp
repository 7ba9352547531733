#include "register/relation_kinds.h"

#include "register/property_tree.h"

#include <algorithm>
#include <cassert>

namespace quelvarn {
namespace {

constexpr std::string_view BAUGRUPPE = "AssembDokuBez, AssembRevBez, AssembDateiname, Assembfilename";
constexpr std::string_view ZEICHNUNG = "DokuBezDraft, RevBezDraft, DateinameDraft, filenameDraft";
constexpr std::string_view SCHWEISSTEIL = "DokuBezWeld, RevBezWeld, DateinameWeld, filenameWeld";

} // namespace

const std::array<Verwendungsart, 6> VERWENDUNGSARTEN{{
    {InfoSeite::InBaugruppe,
     knoten::IN_BAUGRUPPE,
     Ansicht::InBaugruppe,
     {{{"ZusBauPart", BAUGRUPPE, "Part", "", ""}, {"ZusBauSubAss", BAUGRUPPE, "Subassembly", "", ""}}},
     Quellwahl::NachTyp,
     {"AssembDokuBez", "AssembRevBez", "AssembDateiname", "Assembfilename"},
     "Assemb",
     "auf diese Baugruppe"},
    {InfoSeite::InZeichnung,
     knoten::IN_ZEICHNUNG,
     Ansicht::InZeichnung,
     {{{"VerbindungDraftPart", ZEICHNUNG, "PfadAssembPart", "", ""}, {}}},
     Quellwahl::Erste,
     {"DokuBezDraft", "RevBezDraft", "DateinameDraft", "filenameDraft"},
     "Draft",
     "auf diese Zeichnung"},
    {InfoSeite::InSchweissteil,
     knoten::IN_SCHWEISSTEIL,
     Ansicht::InSchweissteil,
     {{{"VerbindungWeldAssemb", SCHWEISSTEIL, "PfadAssemb", "", ""}, {}}},
     Quellwahl::Erste,
     {"DokuBezWeld", "RevBezWeld", "DateinameWeld", "filenameWeld"},
     "Weld",
     "auf diese Baugruppe"},
    {InfoSeite::BestehtAus,
     knoten::BESTEHT_AUS,
     Ansicht::BestehtAus,
     {{{"ZusBauPart", "Part", "", "AssembDokuBez", "AssembRevBez"},
       {"ZusBauSubAss", "Subassembly", "", "AssembDokuBez", "AssembRevBez"}}},
     Quellwahl::Alle,
     {"", "", "DateinameAssembPart", "PfadAssembPart"},
     "",
     "auf dieses Teil der Baugruppe"},
    {InfoSeite::Enthaelt,
     knoten::ENTHAELT,
     Ansicht::Enthaelt,
     {{{"VerbindungDraftPart", "DateinameAssembPart, PfadAssembPart", "", "DokuBezDraft", "RevBezDraft"}, {}}},
     Quellwahl::Erste,
     {"", "", "DateinameAssembPart", "PfadAssembPart"},
     "",
     "auf dieses Modell der Zeichnung"},
    {InfoSeite::EnthaeltBaugruppe,
     knoten::ENTHAELT_BAUGRUPPE,
     Ansicht::EnthaeltBaugruppe,
     {{{"VerbindungWeldAssemb", "DateinameAssemb, PfadAssemb", "", "DokuBezWeld", "RevBezWeld"}, {}}},
     Quellwahl::Erste,
     {"", "", "DateinameAssemb", "PfadAssemb"},
     "",
     "auf diese Baugruppe"},
}};

const Verwendungsart* findVerwendungsart(InfoSeite seite)
{
    const auto art = std::ranges::find(VERWENDUNGSARTEN, seite, &Verwendungsart::seite);
    return art == VERWENDUNGSARTEN.end() ? nullptr : &*art;
}

const Verwendungsart& verwendungsartVon(InfoSeite seite)
{
    const Verwendungsart* art = findVerwendungsart(seite);
    assert(art);
    return *art;
}

} // namespace quelvarn
