#include "register/property_tree.h"

namespace quelvarn {
namespace {

const Node* findIn(const std::vector<Node>& level, std::string_view text)
{
    for (const Node& node : level) {
        if (node.text == text)
            return &node;
        if (const Node* kind = findIn(node.children, text))
            return kind;
    }
    return nullptr;
}

} // namespace

const Node* PropertyTree::find(std::string_view text) const
{
    return findIn(roots, text);
}

void PropertyTree::clear()
{
    *this = {};
}

} // namespace quelvarn
