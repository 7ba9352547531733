#pragma once

#include <cstdio>
#include <memory>

namespace quelvarn::tools {

struct CloseFile
{
    void operator()(std::FILE* file) const { (void)std::fclose(file); }
};
using TemporaryFile = std::unique_ptr<std::FILE, CloseFile>;

// An empty file in the system's folder for such, to be written and read. It goes with the process, however that ends.
// Throws RuntimeError.
TemporaryFile makeTemporaryFile();

} // namespace quelvarn::tools
