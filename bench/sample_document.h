#pragma once

#include "database/document_types.h"
#include "database/schema.h"
#include "database/value.h"

#include <cstddef>
#include <random>
#include <string>

namespace quelvarn::bench {

// The row of one document. Two neighbouring documents are revisions of one another.
class Musterdokument
{
public:
    Musterdokument(const DokuTyp& typ, std::size_t nummer) : typ_(typ), nummer_(nummer) {}

    // What its number does not settle comes from the source.
    Value wert(const Spalte& spalte, std::mt19937& quelle) const;

    std::string bezeichnung() const;
    std::string revision() const { return std::string(1, nummer_ % 2 ? 'B' : 'A'); }
    std::string dateiname() const;
    std::string pfad() const;

private:
    Value text(const std::string& spalte, std::mt19937& quelle) const;
    std::string projekt() const;

    const DokuTyp& typ_;
    std::size_t nummer_;
};

} // namespace quelvarn::bench
