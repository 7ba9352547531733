#include "base/windows_path.h"

#include "base/collation.h"
#include "base/utf8.h"

#include <array>
#include <utility>

namespace quelvarn {

std::string DateiName(std::string_view documentPath)
{
    return std::string(documentPath.substr(documentPath.rfind('\\') + 1));
}

std::string Ordnername(std::string_view documentPath)
{
    const std::size_t backslash = documentPath.rfind('\\');
    return backslash == std::string_view::npos ? std::string() : std::string(documentPath.substr(0, backslash));
}

std::string extensionOf(std::string_view documentPath)
{
    return countCharacters(documentPath) < 3 ? std::string() : toLower(rightCharacters(documentPath, 3));
}

std::string withExtension(std::string_view documentPath, std::string_view extension)
{
    documentPath.remove_suffix(rightCharacters(documentPath, 3).size());
    return std::string(documentPath).append(extension);
}

int fileTypeCode(std::string_view documentPath)
{
    constexpr std::array<std::pair<std::string_view, int>, 5> codes = {
        {{"par", 1}, {"dft", 2}, {"asm", 3}, {"psm", 4}, {"pwd", 6}}};
    const std::string extension = extensionOf(documentPath);
    for (const auto& [known, code] : codes) {
        if (extension == known)
            return code;
    }
    return 0;
}

} // namespace quelvarn
