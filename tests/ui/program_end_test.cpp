#include "fakes/fake_ports.h"
#include "fakes/temp_folder.h"
#include "frame/main_window.h"
#include "ui/adapters/boxes_qt.h"
#include "ui/adapters/patience_qt.h"
#include "ui/adapters/progress_qt.h"
#include "ui/guard.h"
#include "ui/main_window/main_window_view.h"
#include "ui/program_end.h"
#include "ui/theme/appearance.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include <cstddef>
#include <gtest/gtest.h>

namespace quelvarn {
namespace {

constexpr int LONGEST = 5000; // milliseconds

// The desktop says that its session ends.
void logOut()
{
    alignas(std::max_align_t) static std::array<std::byte, 64> manager; // Nobody asks it anything.
    Q_EMIT qApp->commitDataRequest(reinterpret_cast<QSessionManager&>(manager));
}

class ProgramEndTest : public testing::Test
{
protected:
    ProgramEndTest()
    {
        model_.ended = [this] { events_ += "ended "; };
        end_.setWindow(window_, [this] { model_.unload(); });
        window_.show();
        window_.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    }
    bool ended() const { return events_.ends_with("ended "); }

    TempFolder folder_;
    FakePorts world_;
    QtBoxes messages_;
    QtPatience patience_;
    QtProgress progress_;
    Ports ports_ = world_.ports();
    Operations operations_{ports_};
    SessionState session_;
    SlotGuard guard_{messages_, [this] { events_ += "cancelled "; }};
    Appearance appearance_{QString::fromStdString((folder_ / "Darstellung.ini").string())};
    MainWindow model_{session_, operations_, {}};
    MDIForm1 window_{model_, session_.user, appearance_};
    ProgramEnd end_{messages_, patience_, progress_};
    std::string events_;
};

TEST_F(ProgramEndTest, AtOnceWhenNothingRuns)
{
    logOut();
    EXPECT_EQ(events_, "ended ");
}

TEST_F(ProgramEndTest, ABoxIsAnsweredAndItsOperationGoesToItsEndFirst)
{
    QTimer::singleShot(0, &window_, guardedSlot([this] {
                           QTimer::singleShot(0, &window_, logOut);
                           const Box box{"Fehlermeldung", "Fehler", Icon::Critical, Buttons::OkCancel};
                           const bool goesOn = messages_.show(box) == Answer::Ok;
                           events_ += goesOn && !messages_.ask("Weiter", "Noch eine?") ? "answered " : "wrong ";
                       }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return ended(); }, LONGEST));
    EXPECT_EQ(events_, "answered ended ");
}

TEST_F(ProgramEndTest, AnOpenMenuHoldsNothingUp)
{
    QMenu menu(&window_);
    menu.addAction(QStringLiteral("Weiterleiten"));
    QTimer::singleShot(0, &window_, [&] {
        QTimer::singleShot(0, &window_, logOut);
        menu.exec();
    });
    EXPECT_TRUE(QTest::qWaitFor([this] { return ended(); }, LONGEST));
}

TEST_F(ProgramEndTest, RunningWorkIsGivenUp)
{
    QTimer::singleShot(0, &window_, guardedSlot([this] {
                           LongWork work(progress_, "Filtern der Dokumente");
                           QElapsedTimer time;
                           bool asked = false;
                           for (time.start(); work(1, 2) && time.elapsed() < LONGEST;)
                               if (time.elapsed() > 200 && !std::exchange(asked, true))
                                   logOut();
                           events_ += time.elapsed() < LONGEST ? "given up " : "worked on ";
                       }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return ended(); }, 2 * LONGEST));
    EXPECT_EQ(events_, "given up ended ");
}

TEST_F(ProgramEndTest, TheLastMomentDoesNotWaitForABox)
{
    QTimer::singleShot(0, &window_, guardedSlot([this] {
                           QTimer::singleShot(0, &window_, [this] {
                               QMetaObject::invokeMethod(qApp, "aboutToQuit", Qt::DirectConnection);
                               EXPECT_EQ(events_, "ended ");
                               logOut(); // Closes the box.
                           });
                           messages_.show({"Fehlermeldung", "Fehler", Icon::Critical, Buttons::OkCancel});
                       }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return ended() && !QApplication::activeModalWidget(); }, LONGEST));
}

} // namespace
} // namespace quelvarn
