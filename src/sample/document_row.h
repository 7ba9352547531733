#pragma once

#include "sample/documents.h"

namespace quelvarn::sample {

struct Design;
class Random;

// Everything that a document has beside its names.
class Documents : public DocumentNames
{
public:
    using DocumentNames::DocumentNames;

    Value material(std::uint32_t part) const;
    std::string title(std::uint32_t part) const;

    // A row of its document table, cells in the order of the columns.
    void row(std::uint32_t part, int revision, std::vector<Value>& values) const;

private:
    const Design* findDesign(const Part& part) const;
    Value topic(const Part& part) const;
    std::string_view category(const Part& part, Random& random) const;
    void appendFeatures(const Part& part, Random& random, std::vector<Value>& values) const;
    void appendMainValues(const Part& part, Random& random, std::vector<Value>& values) const;
};

// Calls `act` with the number and the revision of each document.
template <typename Action> void forEachDocument(const Documents& documents, Action act)
{
    const auto& parts = documents.plan().parts();
    for (std::uint32_t part = 0; part < parts.size(); ++part)
        for (int revision = 0; revision < parts[part].revisions; ++revision)
            act(part, revision);
}

} // namespace quelvarn::sample
