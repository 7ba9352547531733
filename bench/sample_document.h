#pragma once

#include "database/document_types.h"
#include "database/schema.h"
#include "database/value.h"

#include <cstddef>
#include <random>
#include <string>

namespace quelvarn::bench {

// The row of one document. Two neighbouring documents are revisions of one another.
class SampleDocument
{
public:
    SampleDocument(const DocumentType& type, std::size_t number) : type_(type), number_(number) {}

    // What its number does not settle comes from the source.
    Value value(const ColumnInfo& column, std::mt19937& source) const;

    std::string label() const;
    std::string revision() const { return std::string(1, number_ % 2 ? 'B' : 'A'); }
    std::string fileName() const;
    std::string path() const;

private:
    Value text(const std::string& column, std::mt19937& source) const;
    std::string project() const;

    const DocumentType& type_;
    std::size_t number_;
};

} // namespace quelvarn::bench
