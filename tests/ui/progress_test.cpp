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

constexpr int LANG = 400; // milliseconds

class FortschrittTest : public testing::Test
{
protected:
    FortschrittTest()
    {
        auto* aufbau = new QVBoxLayout(&fenster_);
        aufbau->addWidget(knopf_);
        QObject::connect(knopf_, &QPushButton::clicked, &fenster_, [this] { ++fremdes_; });
        auto* esc = new QShortcut(QKeySequence(Qt::Key_Escape), &fenster_);
        QObject::connect(esc, &QShortcut::activated, &fenster_, [this] { ++fremdes_; });
        fenster_.resize(600, 400);
        fenster_.show();
        fenster_.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&fenster_));
    }

    // Works for so long and does `mittendrin` once when the field is on the screen. True when not given up.
    bool arbeite(int dauer, const std::function<void()>& mittendrin = {})
    {
        LangeArbeit arbeit(anzeige_, "Filtern der Dokumente");
        QElapsedTimer zeit;
        bool getan = false;
        for (zeit.start(); zeit.elapsed() < dauer;) {
            if (!arbeit(static_cast<std::size_t>(zeit.elapsed()), static_cast<std::size_t>(dauer)))
                return false;
            if (gezeigtes() != nullptr && !std::exchange(getan, true) && mittendrin)
                mittendrin();
        }
        return true;
    }

    Fortschrittsfeld* gezeigtes() const
    {
        const auto felder = fenster_.findChildren<Fortschrittsfeld*>();
        for (auto* feld : felder)
            if (feld->isVisible())
                return feld;
        return nullptr;
    }

    FakeMeldungen meldungen_;
    Waechter waechter_{meldungen_, [] {}};
    QWidget fenster_;
    QPushButton* knopf_ = new QPushButton;
    QtFortschritt anzeige_;
    int fremdes_ = 0; // Operations that were started while the work ran.
};

TEST_F(FortschrittTest, QuickWorkIsNeverShown)
{
    bool gesehen = false;
    LangeArbeit arbeit(anzeige_, "Filtern");
    for (std::size_t i = 0; i < 1000; ++i) {
        EXPECT_TRUE(arbeit(i, 1000));
        gesehen = gesehen || gezeigtes() != nullptr;
    }
    EXPECT_FALSE(gesehen);
}

TEST_F(FortschrittTest, LongWorkIsGivenUpByButtonEscOrClosing)
{
    const std::vector<std::function<void()>> wege{
        [this] { QTest::mouseClick(&gezeigtes()->abbrechen(), Qt::LeftButton); },
        [this] { QTest::keyClick(&fenster_, Qt::Key_Escape); },
        [this] { fenster_.close(); },
    };
    for (const auto& weg : wege) {
        EXPECT_FALSE(arbeite(LANG, weg));
        EXPECT_EQ(gezeigtes(), nullptr) << "gone with the work";
        EXPECT_TRUE(fenster_.isVisible());
    }
    EXPECT_EQ(fremdes_, 0);
}

TEST_F(FortschrittTest, NothingElseStartsWhileItRuns)
{
    QTimer zeitgeber;
    QObject::connect(&zeitgeber, &QTimer::timeout, &fenster_, [this] { ++fremdes_; });
    zeitgeber.start(10);
    EXPECT_TRUE(arbeite(LANG, [this] {
        QTest::mouseClick(knopf_, Qt::LeftButton);
        QTest::keyClick(knopf_, Qt::Key_Space);
    }));
    EXPECT_EQ(fremdes_, 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return fremdes_ > 0; })) << "the timer comes again";
    zeitgeber.stop();
    fremdes_ = 0;
    QTest::mouseClick(knopf_, Qt::LeftButton);
    EXPECT_EQ(fremdes_, 1) << "and so does the person";
}

TEST_F(FortschrittTest, ThePageInFrontLendsItsBar)
{
    auto* feld = new Fortschrittsfeld("PrgBarBenutzDef", "LblProgBar", "CmAbbrechenBenutzDef");
    fenster_.layout()->addWidget(feld);
    for (const bool verliehen : {true, false}) {
        feld->setzeVerliehen(verliehen);
        EXPECT_TRUE(arbeite(LANG, [&] { EXPECT_EQ(gezeigtes() == feld, verliehen); }));
        EXPECT_TRUE(feld->isHidden());
    }
}

} // namespace
} // namespace quelvarn
