#include "fakes/fake_ports.h"
#include "fakes/temp_folder.h"
#include "frame/main_window.h"
#include "session/rights.h"
#include "ui/guard.h"
#include "ui/main_window/main_window_view.h"
#include "ui/theme/appearance.h"

#include <QAction>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <QToolBar>

#include <gtest/gtest.h>

namespace quelvarn {
namespace {

class MDIForm1Test : public testing::Test
{
protected:
    std::string buttons()
    {
        std::string visible;
        for (const QAction* button : window_.findChild<QToolBar*>(QStringLiteral("ToolbarMidiFrm"))->actions())
            if (button->isVisible() && !button->text().isEmpty())
                visible += button->text().toStdString() + "|";
        return visible;
    }

    TempFolder folder_;
    FakePorts world_;
    Ports ports_ = world_.ports();
    Operations operations_{ports_};
    SessionState session_;
    SlotGuard slotGuard_{world_.boxes, [] {}};
    Appearance appearance_{QString::fromStdString((folder_ / "Darstellung.ini").string())};
    MainWindow model_{session_, operations_, {}};
    MDIForm1 window_{model_, session_.user, appearance_};
};

TEST_F(MDIForm1Test, HasAFixedSizeInTwips)
{
    // 1440 twips an inch, 96 dots an inch.
    EXPECT_EQ(window_.minimumSize(), QSize(939, 673));
    EXPECT_EQ(window_.maximumSize(), QSize(939, 673));
    session_.user.FensterHoehe = 10150;
    window_.configureSize();
    EXPECT_EQ(window_.size(), QSize(939, 677));

    window_.show();
    window_.setWindowState(Qt::WindowMaximized);
    EXPECT_FALSE(window_.isMaximized()) << "it snaps back";

    appearance_.setWindowFree(true);
    window_.configureSize();
    window_.resize(1200, 800);
    EXPECT_EQ(window_.size(), QSize(1200, 800));
    EXPECT_TRUE(Appearance(QString::fromStdString((folder_ / "Darstellung.ini").string())).windowFree());
}

TEST_F(MDIForm1Test, ShowsTheButtonsThatTheUserMayUse)
{
    for (const auto& [visible, expected] :
         {std::pair(1, "Bearbeiten|Einfügen Baugr.|Plazieren Zchn.|SmartViewer|Beenden|"),
          {0, "SmartViewer|Beenden|"}}) {
        session_.rights.Sichtbar = {visible, visible, visible, 1 - visible, 0, 0};
        session_.pages.ActiveQuelvarn = true;
        model_.configureTools();
        window_.refresh();
        EXPECT_EQ(buttons(), expected);
    }
}

TEST_F(MDIForm1Test, RunsItsTimersAsTold)
{
    const auto* timer = window_.findChild<QTimer*>(QStringLiteral("TimerDBUpdate"));
    session_.use.Zeitintervall = 30000;
    model_.configureTimers();
    model_.RefreshStatusBar();
    window_.refresh();
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 30000);
    EXPECT_FALSE(window_.findChild<QTimer*>(QStringLiteral("TimerCheckInOut"))->isActive());

    window_.showChanges({"", "", "14.02.11", "", ""});
    EXPECT_EQ(window_.findChild<QLabel*>(QStringLiteral("StatusBarUpdate(7)"))->text(), u"14.02.11");

    session_.use.Zeitintervall = 0;
    model_.configureTimers();
    window_.refresh();
    EXPECT_FALSE(timer->isActive());
}

TEST_F(MDIForm1Test, ClosingAsksTheModelAndNothingElse)
{
    int ended = 0;
    model_.ended = [&] { ++ended; };
    window_.show();
    window_.close();
    EXPECT_EQ(ended, 1);
    EXPECT_TRUE(window_.isVisible()) << "the window goes with the program";
}

} // namespace
} // namespace quelvarn
