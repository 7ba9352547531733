#include "filter/value_list.h"

#include "base/collation.h"
#include "base/text.h"

namespace quelvarn {

ValueList valueList(std::vector<std::string> values)
{
    const bool onlyEmpty = values.size() == 1 && trimRightBlanks(values.front()).empty();
    std::string count = std::to_string(onlyEmpty ? 0 : values.size());
    return {std::move(values), std::move(count)};
}

std::string displayName(const Labels& labels, std::string_view Feldname)
{
    std::string key = replaceAll(toLower(Feldname), "_", " ");
    if (Feldname == "Stichwoerter")
        key = "stichwörter";
    else if (Feldname == "Geaendert")
        key = "geändert";
    const auto name = labels.Bezeichnungen.find(key);
    return name == labels.Bezeichnungen.end() ? std::string(Feldname) : name->second;
}

} // namespace quelvarn
