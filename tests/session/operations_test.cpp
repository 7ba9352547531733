// When the window is told, and what: once a gesture, before each box, and changed rows at once.
#include "base/runtime_error.h"
#include "fakes/fake_ports.h"
#include "session/operations.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

namespace quelvarn {
namespace {

class OperationsTest : public testing::Test
{
protected:
    OperationsTest()
    {
        operations_.show = [this](const Parts& parts) { told_ += parts.to_string() + ";"; };
    }
    static std::string of(Part part) { return Parts().set(static_cast<std::size_t>(part)).to_string() + ";"; }
    void showBox() { operations_.ports().boxes.warn("Titel", "Text"); }

    FakePorts world_;
    Ports outside_ = world_.ports();
    Operations operations_{outside_};
    std::string told_;
};

TEST_F(OperationsTest, AGestureOfManyOperationsIsToldOnce)
{
    const bool done = operations_.perform(Part::Document, "a", "b", [&] {
        operations_.perform(Part::Document, "c", "d", [] {});
        operations_.report(Part::Document, [&] { operations_.changed(Part::Document); });
        EXPECT_EQ(told_, "");
    });
    EXPECT_TRUE(done);
    EXPECT_EQ(told_, of(Part::Document));
    operations_.changed(Part::Frame); // Nothing runs: at once.
    EXPECT_EQ(told_, of(Part::Document) + of(Part::Frame));
}

TEST_F(OperationsTest, RowsAreToldAtOnceAndTheRestBeforeABox)
{
    world_.boxes.expect("Titel", "Text");
    operations_.perform(Part::Document, "a", "b", [&] {
        operations_.changed(Part::Rows);
        EXPECT_EQ(told_, of(Part::Rows));
        told_.clear();
        showBox();
        EXPECT_EQ(told_, of(Part::Document));
        told_.clear();
        operations_.ports().progress.begin("Arbeit");
        EXPECT_EQ(told_, "") << "nothing has changed since";
    });
    EXPECT_EQ(told_, of(Part::Document)) << "what ran behind the box counts as well";
}

TEST_F(OperationsTest, AFaultIsReportedAndTheNextOperationIsToldAsEver)
{
    world_.boxes.expect("Titel", "Eigene Meldung!");
    world_.boxes.answer();
    EXPECT_FALSE(operations_.perform(Part::TopBar, "Titel", "Eigene Meldung!", [] { throw std::runtime_error("x"); }));
    told_.clear();

    world_.boxes.answer();
    EXPECT_FALSE(operations_.report(Part::TopBar, [] { throw RuntimeError(5, "Quelvarn", "x"); }));
    told_.clear();

    world_.boxes.expect("Titel", "Ende");
    world_.boxes.answer(Answer::Cancel);
    EXPECT_THROW(operations_.perform(Part::TopBar, "Titel", "Ende", [] { throw std::runtime_error("x"); }),
                 ProgramExit);
    told_.clear();
    operations_.perform(Part::LeftBar, "a", "b", [] {});
    EXPECT_EQ(told_, of(Part::LeftBar));
}

} // namespace
} // namespace quelvarn
