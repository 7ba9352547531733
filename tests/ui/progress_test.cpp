#include "fakes/fake_boxes.h"
#include "ui/adapters/progress_qt.h"
#include "ui/controls/progress_field.h"
#include "ui/guard.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QPushButton>
#include <QShortcut>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace quelvarn {
namespace {

constexpr int LONG = 400; // milliseconds

class ProgressTest : public testing::Test
{
protected:
    ProgressTest()
    {
        auto* layout = new QVBoxLayout(&window_);
        layout->addWidget(button_);
        QObject::connect(button_, &QPushButton::clicked, &window_, [this] { ++foreign_; });
        auto* esc = new QShortcut(QKeySequence(Qt::Key_Escape), &window_);
        QObject::connect(esc, &QShortcut::activated, &window_, [this] { ++foreign_; });
        window_.resize(600, 400);
        window_.show();
        window_.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    }

    // Works for so long and does `inTheMiddle` once when the field is on the screen. True when not given up.
    bool work(int duration, const std::function<void()>& inTheMiddle = {})
    {
        LongWork work(display_, "Filtern der Dokumente");
        QElapsedTimer time;
        bool done = false;
        for (time.start(); time.elapsed() < duration;) {
            if (!work(static_cast<std::size_t>(time.elapsed()), static_cast<std::size_t>(duration)))
                return false;
            if (shown() != nullptr && !std::exchange(done, true) && inTheMiddle)
                inTheMiddle();
        }
        return true;
    }

    ProgressField* shown() const
    {
        const auto fields = window_.findChildren<ProgressField*>();
        for (auto* field : fields)
            if (field->isVisible())
                return field;
        return nullptr;
    }

    FakeBoxes boxes_;
    SlotGuard slotGuard_{boxes_, [] {}};
    QWidget window_;
    QPushButton* button_ = new QPushButton;
    QtProgress display_;
    int foreign_ = 0; // Operations that were started while the work ran.
};

TEST_F(ProgressTest, QuickWorkIsNeverShown)
{
    bool seen = false;
    LongWork work(display_, "Filtern");
    for (std::size_t i = 0; i < 1000; ++i) {
        EXPECT_TRUE(work(i, 1000));
        seen = seen || shown() != nullptr;
    }
    EXPECT_FALSE(seen);
}

TEST_F(ProgressTest, LongWorkIsGivenUpByButtonEscOrClosing)
{
    const std::vector<std::function<void()>> routes{
        [this] { QTest::mouseClick(&shown()->cancel(), Qt::LeftButton); },
        [this] { QTest::keyClick(&window_, Qt::Key_Escape); },
        [this] { window_.close(); },
    };
    for (const auto& route : routes) {
        EXPECT_FALSE(work(LONG, route));
        EXPECT_EQ(shown(), nullptr) << "gone with the work";
        EXPECT_TRUE(window_.isVisible());
    }
    EXPECT_EQ(foreign_, 0);
}

TEST_F(ProgressTest, NothingElseStartsWhileItRuns)
{
    QTimer timerSetting;
    QObject::connect(&timerSetting, &QTimer::timeout, &window_, [this] { ++foreign_; });
    timerSetting.start(10);
    EXPECT_TRUE(work(LONG, [this] {
        QTest::mouseClick(button_, Qt::LeftButton);
        QTest::keyClick(button_, Qt::Key_Space);
    }));
    EXPECT_EQ(foreign_, 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return foreign_ > 0; })) << "the timer comes again";
    timerSetting.stop();
    foreign_ = 0;
    QTest::mouseClick(button_, Qt::LeftButton);
    EXPECT_EQ(foreign_, 1) << "and so does the person";
}

TEST_F(ProgressTest, ThePageInFrontLendsItsBar)
{
    auto* field = new ProgressField("PrgBarBenutzDef", "LblProgBar", "CmAbbrechenBenutzDef");
    window_.layout()->addWidget(field);
    for (const bool lent : {true, false}) {
        field->setLent(lent);
        EXPECT_TRUE(work(LONG, [&] { EXPECT_EQ(shown() == field, lent); }));
        EXPECT_TRUE(field->isHidden());
    }
}

} // namespace
} // namespace quelvarn
