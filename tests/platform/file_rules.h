#pragma once

#include "platform/files.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace quelvarn {

// A file system with the empty drives C: and W:.
struct DateienWelt
{
    virtual ~DateienWelt() = default;
    virtual Dateien& dateien() = 0;
};

using MacheDateienWelt = std::function<std::unique_ptr<DateienWelt>()>;

// What every file system promises, whatever lies beneath it.
class DateienRegeln : public testing::TestWithParam<MacheDateienWelt>
{
protected:
    std::unique_ptr<DateienWelt> welt_ = GetParam()();
    Dateien& dateien_ = welt_->dateien();
};

} // namespace quelvarn
