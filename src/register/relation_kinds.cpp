#include "register/relation_kinds.h"

#include "register/property_tree.h"

#include <algorithm>
#include <cassert>

namespace quelvarn {
namespace {

constexpr std::string_view ASSEMBLY = "AssembDokuBez, AssembRevBez, AssembDateiname, Assembfilename";
constexpr std::string_view DRAWING = "DokuBezDraft, RevBezDraft, DateinameDraft, filenameDraft";
constexpr std::string_view WELDMENT = "DokuBezWeld, RevBezWeld, DateinameWeld, filenameWeld";

} // namespace

const std::array<RelationKind, 6> RELATION_KINDS{{
    {InfoPageId::InAssembly,
     nodes::IN_ASSEMBLY,
     ViewerPlace::InAssembly,
     {{{"ZusBauPart", ASSEMBLY, "Part", "", ""}, {"ZusBauSubAss", ASSEMBLY, "Subassembly", "", ""}}},
     SourceChoice::ByType,
     {"AssembDokuBez", "AssembRevBez", "AssembDateiname", "Assembfilename"},
     "Assemb",
     "auf diese Baugruppe"},
    {InfoPageId::InDrawing,
     nodes::IN_DRAWING,
     ViewerPlace::InDrawing,
     {{{"VerbindungDraftPart", DRAWING, "PfadAssembPart", "", ""}, {}}},
     SourceChoice::First,
     {"DokuBezDraft", "RevBezDraft", "DateinameDraft", "filenameDraft"},
     "Draft",
     "auf diese Zeichnung"},
    {InfoPageId::InWeldment,
     nodes::IN_WELDMENT,
     ViewerPlace::InWeldment,
     {{{"VerbindungWeldAssemb", WELDMENT, "PfadAssemb", "", ""}, {}}},
     SourceChoice::First,
     {"DokuBezWeld", "RevBezWeld", "DateinameWeld", "filenameWeld"},
     "Weld",
     "auf diese Baugruppe"},
    {InfoPageId::ConsistsOf,
     nodes::CONSISTS_OF,
     ViewerPlace::ConsistsOf,
     {{{"ZusBauPart", "Part", "", "AssembDokuBez", "AssembRevBez"},
       {"ZusBauSubAss", "Subassembly", "", "AssembDokuBez", "AssembRevBez"}}},
     SourceChoice::All,
     {"", "", "DateinameAssembPart", "PfadAssembPart"},
     "",
     "auf dieses Teil der Baugruppe"},
    {InfoPageId::Contains,
     nodes::CONTAINS,
     ViewerPlace::Contains,
     {{{"VerbindungDraftPart", "DateinameAssembPart, PfadAssembPart", "", "DokuBezDraft", "RevBezDraft"}, {}}},
     SourceChoice::First,
     {"", "", "DateinameAssembPart", "PfadAssembPart"},
     "",
     "auf dieses Modell der Zeichnung"},
    {InfoPageId::ContainsAssembly,
     nodes::CONTAINS_ASSEMBLY,
     ViewerPlace::ContainsAssembly,
     {{{"VerbindungWeldAssemb", "DateinameAssemb, PfadAssemb", "", "DokuBezWeld", "RevBezWeld"}, {}}},
     SourceChoice::First,
     {"", "", "DateinameAssemb", "PfadAssemb"},
     "",
     "auf diese Baugruppe"},
}};

const RelationKind* findRelationKind(InfoPageId page)
{
    const auto kind = std::ranges::find(RELATION_KINDS, page, &RelationKind::page);
    return kind == RELATION_KINDS.end() ? nullptr : &*kind;
}

const RelationKind& relationKindOf(InfoPageId page)
{
    const RelationKind* kind = findRelationKind(page);
    assert(kind);
    return *kind;
}

} // namespace quelvarn
