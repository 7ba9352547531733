#pragma once

#include "register/info_pages.h"
#include "viewing/viewer.h"

#include <array>
#include <string_view>

namespace quelvarn {

// Fields of a link table that tell of one document. Of a component it has the file alone.
struct DocumentFields
{
    std::string_view DokuBez, RevBez, Dateiname, filename;
};

// A link table, read from one of its two sides: `columns` of the rows that belong to the document shown. It is known
// by its path (`documentPath`), or by its name and revision.
struct LinkTable
{
    std::string_view table;
    std::string_view columns;
    std::string_view documentPath;
    std::string_view DokuBez, RevBez;
};

// Which link tables a page is filled from.
enum class SourceChoice {
    First,
    ByType, // The first for what is built in as a part, the second for assemblies.
    All,    // One after the other.
};

// What differs between the six pages of composition and where-used.
struct RelationKind
{
    InfoPageId page;
    std::string_view node; // Node of the tree.
    ViewerPlace view;
    std::array<LinkTable, 2> tables;
    SourceChoice sourceChoice;
    DocumentFields fields;       // Of the grid.
    std::string_view targetType; // Key of the documents in the grid; "" where the ending of the file tells.
    std::string_view accessTo;   // Goes into the box that tells of a missing right.

    bool components() const { return fields.DokuBez.empty(); }
};

extern const std::array<RelationKind, 6> RELATION_KINDS;
// nullptr when the page is none of the six.
const RelationKind* findRelationKind(InfoPageId page);
const RelationKind& relationKindOf(InfoPageId page);

} // namespace quelvarn
