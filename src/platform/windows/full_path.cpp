#include "platform/windows/full_path.h"

#include "base/text.h"
#include "platform/windows/wide_text.h"

#include <utility>
#include <vector>

namespace quelvarn {
namespace {

bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

// The part as the system keeps it: blanks and points at the end of a name are lost.
std::string_view nameOf(std::string_view part)
{
    return part.substr(0, part.find_last_not_of(" .") + 1);
}

// The parts behind drive or share, joined; `first` is the first of them.
std::string tailOf(const std::vector<std::string>& written, std::size_t first)
{
    std::vector<std::string> parts;
    for (std::size_t i = first; i < written.size(); ++i) {
        const std::string_view name = nameOf(written[i]);
        if (written[i] == ".." && !parts.empty())
            parts.pop_back();
        else if (!name.empty())
            parts.emplace_back(name);
    }
    return join(parts, "\\");
}

// "?" stands for the system's own forms of paths.
bool isServerOrShare(const std::string& part)
{
    return !nameOf(part).empty() && part != "?";
}

} // namespace

std::wstring fullPath(std::string_view documentPath)
{
    const std::string path = replaceAll(documentPath, "/", "\\");
    if (path.size() < 2 || path.find('\0') != std::string::npos)
        return {};
    const std::vector<std::string> parts = split(std::string_view(path).substr(2), '\\');
    if (isLetter(path[0]) && path[1] == ':')
        return wide(path.substr(0, 2) + "\\" + tailOf(parts, 0));
    if (!path.starts_with("\\\\") || parts.size() < 2 || !isServerOrShare(parts[0]) || !isServerOrShare(parts[1]))
        return {};
    return wide("\\\\" + parts[0] + "\\" + parts[1] + "\\" + tailOf(parts, 2));
}

std::wstring longPath(const std::wstring& fullPath)
{
    if (fullPath.empty() || fullPath.starts_with(L"\\\\?\\"))
        return fullPath;
    return fullPath.starts_with(L"\\\\") ? L"\\\\?\\UNC" + fullPath.substr(1) : L"\\\\?\\" + fullPath;
}

} // namespace quelvarn
