#include "platform/windows/open_file.h"

#include "platform/file_error.h"
#include "platform/windows/error.h"

#include <algorithm>
#include <system_error>
#include <windows.h>

namespace quelvarn {
namespace {

// Network folders refuse larger pieces.
constexpr std::size_t largestPiece = 1 << 24;

HANDLE openHandle(const std::wstring& path, OpenFile::Zugriff zugriff)
{
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const DWORD access = zugriff == OpenFile::Zugriff::Lesen ? GENERIC_READ : GENERIC_WRITE;
    const DWORD way = zugriff == OpenFile::Zugriff::NeuAnlegen ? CREATE_NEW : OPEN_EXISTING;
    return CreateFileW(path.c_str(), access, everybody, nullptr, way, FILE_ATTRIBUTE_NORMAL, nullptr);
}

DWORD pieceOf(std::size_t length)
{
    return static_cast<DWORD>(std::min(length, largestPiece));
}

void check(BOOL success, std::string_view pfad)
{
    if (!success)
        throw windowsDateifehler(GetLastError(), pfad);
}

} // namespace

OpenFile::OpenFile(const std::wstring& path, Zugriff zugriff, std::string_view pfad)
    : pfad_(pfad), handle_(openHandle(path, zugriff))
{
    if (handle_ != INVALID_HANDLE_VALUE)
        return;
    const DWORD error = GetLastError();
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY))
        throw dateifehler(std::errc::is_a_directory, pfad);
    throw windowsDateifehler(error, pfad);
}

OpenFile::~OpenFile()
{
    CloseHandle(handle_);
}

std::string OpenFile::readAll() const
{
    LARGE_INTEGER size{};
    check(GetFileSizeEx(handle_, &size), pfad_);
    std::string content(static_cast<std::size_t>(size.QuadPart), '\0');
    std::size_t length = 0;
    while (true) {
        if (length == content.size())
            content.resize(content.size() + 4096); // It may have grown meanwhile.
        DWORD count = 0;
        check(ReadFile(handle_, content.data() + length, pieceOf(content.size() - length), &count, nullptr), pfad_);
        if (count == 0)
            break;
        length += count;
    }
    content.resize(length);
    return content;
}

void OpenFile::write(std::string_view bytes)
{
    while (!bytes.empty()) {
        DWORD written = 0;
        check(WriteFile(handle_, bytes.data(), pieceOf(bytes.size()), &written, nullptr), pfad_);
        bytes.remove_prefix(written);
    }
}

void OpenFile::flush()
{
    check(FlushFileBuffers(handle_), pfad_);
}

} // namespace quelvarn
