#pragma once

#include "database/engine_fixture.h"
#include "tools/command_call.h"

#include <gtest/gtest.h>

namespace quelvarn::test {

class Commands : public ::testing::TestWithParam<std::string_view>
{
protected:
    void SetUp() override
    {
        if (isPostgres() && !PostgresCluster::find())
            GTEST_SKIP() << "no PostgreSQL server is installed here";
        target_ = isPostgres() ? PostgresCluster::find()->newDatabase() : path(folder_ / "register.qv");
    }

    static bool isPostgres() { return GetParam() == "PostgreSQL"; }

    TempFolder folder_;
    std::string target_;
};

} // namespace quelvarn::test
