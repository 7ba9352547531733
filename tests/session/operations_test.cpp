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
    void showBox() { operations_.ports().meldungen.warnung("Titel", "Text"); }

    FakePorts welt_;
    Ports outside_ = welt_.ports();
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
    welt_.meldungen.erwarte("Titel", "Text");
    operations_.perform(Part::Document, "a", "b", [&] {
        operations_.changed(Part::Rows);
        EXPECT_EQ(told_, of(Part::Rows));
        told_.clear();
        showBox();
        EXPECT_EQ(told_, of(Part::Document));
        told_.clear();
        operations_.ports().fortschritt.beginne("Arbeit");
        EXPECT_EQ(told_, "") << "nothing has changed since";
    });
    EXPECT_EQ(told_, of(Part::Document)) << "what ran behind the box counts as well";
}

TEST_F(OperationsTest, AFaultIsReportedAndTheNextOperationIsToldAsEver)
{
    welt_.meldungen.erwarte("Titel", "Eigene Meldung!");
    welt_.meldungen.antworte();
    EXPECT_FALSE(operations_.perform(Part::TopBar, "Titel", "Eigene Meldung!", [] { throw std::runtime_error("x"); }));
    told_.clear();

    welt_.meldungen.antworte();
    EXPECT_FALSE(operations_.report(Part::TopBar, [] { throw Laufzeitfehler(5, "Quelvarn", "x"); }));
    told_.clear();

    welt_.meldungen.erwarte("Titel", "Ende");
    welt_.meldungen.antworte(Antwort::Abbrechen);
    EXPECT_THROW(operations_.perform(Part::TopBar, "Titel", "Ende", [] { throw std::runtime_error("x"); }),
                 ProgrammEnde);
    told_.clear();
    operations_.perform(Part::LeftBar, "a", "b", [] {});
    EXPECT_EQ(told_, of(Part::LeftBar));
}

} // namespace
} // namespace quelvarn
