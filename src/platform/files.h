#pragma once

#include "base/date_time.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

struct FileAttributes
{
    bool readOnly = false;
    bool hidden = false;
    bool archive = false;
    DateTime created;
    DateTime changed;
    DateTime access;
    std::int64_t size = 0; // bytes
};

struct FolderEntry
{
    std::string name;
    bool folder = false;
};

// Files and folders by their Windows paths. Questions answer quietly; doing what cannot be done
// throws RuntimeError with the system's reason.
class Files
{
public:
    virtual ~Files() = default;

    virtual bool fileExists(std::string_view documentPath) const = 0;
    virtual bool folderExists(std::string_view documentPath) const = 0;
    virtual void createFolder(std::string_view documentPath) = 0;
    // Sorted by name; throws when the folder or its drive cannot be read.
    virtual std::vector<FolderEntry> content(std::string_view folder) const = 0;

    virtual std::optional<FileAttributes> attribute(std::string_view documentPath) const = 0;
    virtual void setReadOnly(std::string_view documentPath, bool set) = 0;
    virtual void setArchive(std::string_view documentPath, bool set) = 0;

    virtual std::string read(std::string_view documentPath) const = 0;
    // The file appears whole or not at all. A write-protected file is neither written over nor deleted.
    virtual void write(std::string_view documentPath, std::string_view content) = 0;
    virtual void copy(std::string_view from, std::string_view to) = 0;
    virtual void remove(std::string_view documentPath) = 0;

    // The path that the operating system takes for this Windows path, whether or not it exists.
    virtual std::filesystem::path systemPath(std::string_view documentPath) const = 0;
};

} // namespace quelvarn
