#pragma once

#include "base/file_path.h"

#include <filesystem>
#include <random>
#include <string>
#include <system_error>

namespace quelvarn {

// An empty folder that goes, with all that lies in it, when the object goes.
class TempFolder
{
public:
    TempFolder()
    {
        std::random_device random;
        do {
            path_ = std::filesystem::temp_directory_path() / ("quelvarn-test-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(path_));
    }
    ~TempFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(const std::string& name) const { return path_ / pathFromUtf8(name); }

private:
    std::filesystem::path path_;
};

} // namespace quelvarn
