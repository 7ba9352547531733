#pragma once

#include "platform/files.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace quelvarn {

// A file system with the empty drives C: and W:.
struct FileWorld
{
    virtual ~FileWorld() = default;
    virtual Files& files() = 0;
};

using MakeFileWorld = std::function<std::unique_ptr<FileWorld>()>;

// What every file system promises, whatever lies beneath it.
class FileRules : public testing::TestWithParam<MakeFileWorld>
{
protected:
    std::unique_ptr<FileWorld> world_ = GetParam()();
    Files& files_ = world_->files();
};

} // namespace quelvarn
