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
    std::string knoepfe()
    {
        std::string sichtbar;
        for (const QAction* knopf : fenster_.findChild<QToolBar*>(QStringLiteral("ToolbarMidiFrm"))->actions())
            if (knopf->isVisible() && !knopf->text().isEmpty())
                sichtbar += knopf->text().toStdString() + "|";
        return sichtbar;
    }

    TempFolder ordner_;
    FakePorts welt_;
    Ports ports_ = welt_.ports();
    Operations operations_{ports_};
    SessionState session_;
    Waechter waechter_{welt_.meldungen, [] {}};
    Darstellung darstellung_{QString::fromStdString((ordner_ / "Darstellung.ini").string())};
    MainWindow modell_{session_, operations_, {}};
    MDIForm1 fenster_{modell_, session_, darstellung_};
};

TEST_F(MDIForm1Test, HasAFixedSizeInTwips)
{
    // 1440 twips an inch, 96 dots an inch.
    EXPECT_EQ(fenster_.minimumSize(), QSize(939, 673));
    EXPECT_EQ(fenster_.maximumSize(), QSize(939, 673));
    session_.user.FensterHoehe = 10150;
    fenster_.stelleGroesseEin();
    EXPECT_EQ(fenster_.size(), QSize(939, 677));

    fenster_.show();
    fenster_.setWindowState(Qt::WindowMaximized);
    EXPECT_FALSE(fenster_.isMaximized()) << "it snaps back";

    darstellung_.setzeFensterFrei(true);
    fenster_.stelleGroesseEin();
    fenster_.resize(1200, 800);
    EXPECT_EQ(fenster_.size(), QSize(1200, 800));
    EXPECT_TRUE(Darstellung(QString::fromStdString((ordner_ / "Darstellung.ini").string())).fensterFrei());
}

TEST_F(MDIForm1Test, ShowsTheButtonsThatTheUserMayUse)
{
    for (const auto& [sichtbar, erwartet] :
         {std::pair(1, "Bearbeiten|Einfügen Baugr.|Plazieren Zchn.|SmartViewer|Beenden|"),
          {0, "SmartViewer|Beenden|"}}) {
        session_.rights.Sichtbar = {sichtbar, sichtbar, sichtbar, 1 - sichtbar, 0, 0};
        session_.pages.ActiveQuelvarn = true;
        modell_.stelleWerkzeugeEin();
        fenster_.zeigen();
        EXPECT_EQ(knoepfe(), erwartet);
    }
}

TEST_F(MDIForm1Test, RunsItsTimersAsTold)
{
    const auto* timer = fenster_.findChild<QTimer*>(QStringLiteral("TimerDBUpdate"));
    session_.use.Zeitintervall = 30000;
    modell_.stelleZeitgeberEin();
    modell_.RefreshStatusBar();
    fenster_.zeigen();
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 30000);
    EXPECT_FALSE(fenster_.findChild<QTimer*>(QStringLiteral("TimerCheckInOut"))->isActive());

    fenster_.zeigeAenderungen({"", "", "14.02.11", "", ""});
    EXPECT_EQ(fenster_.findChild<QLabel*>(QStringLiteral("StatusBarUpdate(7)"))->text(), u"14.02.11");

    session_.use.Zeitintervall = 0;
    modell_.stelleZeitgeberEin();
    fenster_.zeigen();
    EXPECT_FALSE(timer->isActive());
}

TEST_F(MDIForm1Test, ClosingAsksTheModelAndNothingElse)
{
    int beendet = 0;
    modell_.beendet = [&] { ++beendet; };
    fenster_.show();
    fenster_.close();
    EXPECT_EQ(beendet, 1);
    EXPECT_TRUE(fenster_.isVisible()) << "the window goes with the program";
}

} // namespace
} // namespace quelvarn
