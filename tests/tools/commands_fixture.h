#pragma once

#include "database/engine_fixture.h"
#include "tools/command_call.h"

#include <gtest/gtest.h>

namespace quelvarn::test {

class Befehle : public ::testing::TestWithParam<std::string_view>
{
protected:
    void SetUp() override
    {
        if (istPostgres() && !PostgresCluster::find())
            GTEST_SKIP() << "no PostgreSQL server is installed here";
        ziel_ = istPostgres() ? PostgresCluster::find()->neueDatenbank() : pfad(ordner_ / "register.qv");
    }

    static bool istPostgres() { return GetParam() == "PostgreSQL"; }

    TempFolder ordner_;
    std::string ziel_;
};

} // namespace quelvarn::test
