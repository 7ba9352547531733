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

HANDLE openHandle(const std::wstring& path, OpenFile::Access access)
{
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const DWORD rights = access == OpenFile::Access::Read ? GENERIC_READ : GENERIC_WRITE;
    const DWORD way = access == OpenFile::Access::CreateNew ? CREATE_NEW : OPEN_EXISTING;
    return CreateFileW(path.c_str(), rights, everybody, nullptr, way, FILE_ATTRIBUTE_NORMAL, nullptr);
}

DWORD pieceOf(std::size_t length)
{
    return static_cast<DWORD>(std::min(length, largestPiece));
}

void check(BOOL success, std::string_view documentPath)
{
    if (!success)
        throw windowsFileFault(GetLastError(), documentPath);
}

} // namespace

OpenFile::OpenFile(const std::wstring& path, Access access, std::string_view documentPath)
    : documentPath_(documentPath), handle_(openHandle(path, access))
{
    if (handle_ != INVALID_HANDLE_VALUE)
        return;
    const DWORD error = GetLastError();
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY))
        throw fileFault(std::errc::is_a_directory, documentPath);
    throw windowsFileFault(error, documentPath);
}

OpenFile::~OpenFile()
{
    CloseHandle(handle_);
}

std::string OpenFile::readAll() const
{
    LARGE_INTEGER size{};
    check(GetFileSizeEx(handle_, &size), documentPath_);
    std::string content(static_cast<std::size_t>(size.QuadPart), '\0');
    std::size_t length = 0;
    while (true) {
        if (length == content.size())
            content.resize(content.size() + 4096); // It may have grown meanwhile.
        DWORD count = 0;
        check(ReadFile(handle_, content.data() + length, pieceOf(content.size() - length), &count, nullptr),
              documentPath_);
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
        check(WriteFile(handle_, bytes.data(), pieceOf(bytes.size()), &written, nullptr), documentPath_);
        bytes.remove_prefix(written);
    }
}

void OpenFile::flush()
{
    check(FlushFileBuffers(handle_), documentPath_);
}

} // namespace quelvarn
