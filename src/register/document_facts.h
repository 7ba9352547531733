#pragma once

#include "platform/ports.h"
#include "register/info_pages.h"

#include <optional>
#include <vector>

namespace quelvarn {

struct DokuRecord;
struct DocumentType;
class Connection;
struct TreeSwitches;

// What the user-defined rows and the link table of additional documents tell.
struct PropertyFacts
{
    bool userDefined = false;
    bool sent = false;
    bool additionalDocuments = false;
};

// What the database and the folders know of a document beside its row, as far as the switches of the tree ask for it.
struct DocumentFacts
{
    bool severalRevisions = false;
    bool newerRevision = false;
    bool relationsAsked = false;
    std::vector<InfoPageId> relations; // Pages of composition and where-used that have rows.
    bool tiff = false;
    bool pdf = false;
    std::optional<PropertyFacts> properties; // Nothing while nobody has asked.

    bool has(InfoPageId relation) const;
};

// Fact by fact: after a fault those found before it stay.
void findFacts(DocumentFacts& facts, const DokuRecord& record, const DocumentType& type, Connection& connection,
               const TreeSwitches& switches, const Ports& ports);
// The same; a fault is not met again.
void findPropertyFacts(DocumentFacts& facts, const DokuRecord& record, const DocumentType& type, Connection& connection,
                       const TreeSwitches& switches);

} // namespace quelvarn
