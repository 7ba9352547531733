#include "register/property_tree.h"

namespace quelvarn {
namespace {

const Knoten* findeIn(const std::vector<Knoten>& ebene, std::string_view text)
{
    for (const Knoten& knoten : ebene) {
        if (knoten.text == text)
            return &knoten;
        if (const Knoten* kind = findeIn(knoten.kinder, text))
            return kind;
    }
    return nullptr;
}

} // namespace

const Knoten* Eigenschaftsbaum::finde(std::string_view text) const
{
    return findeIn(wurzeln, text);
}

void Eigenschaftsbaum::leere()
{
    *this = {};
}

} // namespace quelvarn
