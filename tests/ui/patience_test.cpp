#include "database/connection.h"
#include "database/faults.h"
#include "database/open_engine.h"
#include "database/recordset.h"
#include "fakes/fake_boxes.h"
#include "fakes/temp_folder.h"
#include "ui/adapters/patience_qt.h"
#include "ui/adapters/progress_qt.h"
#include "ui/controls/grid.h"
#include "ui/guard.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace quelvarn {
namespace {

// A window with a grid whose cells are read when they are drawn, over a file that another program is writing.
class PatienceTest : public testing::Test
{
protected:
    PatienceTest()
    {
        constexpr int rows = 4000;
        other_->createTable({"Tafel", {{"Wort"}, {"Bild"}}, {}});
        other_->begin();
        for (int i = 0; i < rows; ++i) {
            const sql::Assignment values[] = {{"Wort", std::to_string(10'000 + i)}, {"Bild", "b"}};
            other_->insert("Tafel", values);
        }
        other_->commit();
        connection_.setPatience(&patience_);
        connection_.Open(folder_ / "test.qv");
        rows_.Open("Select * From Tafel Order By Wort", connection_);
        grid_.display(&rows_, 1);

        auto* column = new QVBoxLayout(&window_);
        column->addWidget(&button_);
        column->addWidget(&grid_);
        QObject::connect(&button_, &QPushButton::clicked, &window_, [this] { ++foreign_; });
        timer_.start(10);
        QObject::connect(&timer_, &QTimer::timeout, &window_, [this] { ++foreign_; });
        window_.resize(600, 400);
        window_.show();
        window_.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    }

    // Writes while the other program does, and does this in the middle of the wait. True when it was given up.
    bool write(const std::function<void()>& meanwhile)
    {
        other_->begin();
        locked_ = true;
        foreign_ = 0;
        clock_.start();
        QMetaObject::invokeMethod(&window_, meanwhile, Qt::QueuedConnection);
        bool givenUp = false;
        try {
            connection_.execute("Update Tafel Set Bild = 'neu' Where Wort = '10000'");
        } catch (const DatabaseFault& fault) {
            givenUp = fault.kind() == FaultKind::GivenUp;
        }
        EXPECT_EQ(foreign_, 0) << "nothing else was started";
        release();
        return givenUp;
    }
    void release()
    {
        if (std::exchange(locked_, false))
            other_->rollBack();
    }
    static QDialog* panel()
    {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == u"WaitPanel" && window->isVisible())
                return qobject_cast<QDialog*>(window);
        return nullptr;
    }
    QString cell(int row) const { return grid_.model()->index(row, 1).data().toString(); }

    FakeBoxes boxes_;
    SlotGuard guard_{boxes_, [] {}};
    TempFolder folder_;
    std::shared_ptr<Engine> other_ = openSqlite(folder_ / "test.qv", true);
    bool locked_ = false;
    QtPatience patience_;
    Connection connection_;
    Recordset rows_;
    QWidget window_;
    QPushButton button_;
    Grid grid_{"Gitter", {{"Wort", "Wort"}, {"Bild", "Bild"}}, {50, 50}};
    QTimer timer_;
    QElapsedTimer clock_;
    int foreign_ = 0; // Operations that were started.
};

TEST_F(PatienceTest, ThePanelComesAfterHalfASecondAndGivesUp)
{
    const std::function<void()> ways[] = {
        [] { QTest::mouseClick(panel()->findChild<QPushButton*>(), Qt::LeftButton); },
        [] { QTest::keyClick(panel(), Qt::Key_Escape); },
        [] { panel()->close(); },
        [this] { window_.close(); },
    };
    for (const auto& way : ways) {
        EXPECT_TRUE(write([&] {
            EXPECT_GE(clock_.elapsed(), 500);
            EXPECT_LT(clock_.elapsed(), 900);
            ASSERT_NE(panel(), nullptr);
            EXPECT_EQ(panel()->findChild<QLabel*>()->text(),
                      u"Die Datenbank ist durch ein anderes Programm gesperrt.\nEs wird gewartet ... (0 Sek.)");
            way();
        }));
        EXPECT_EQ(panel(), nullptr);
        EXPECT_TRUE(window_.isVisible());
    }
}

TEST_F(PatienceTest, AtTheStartItIsAWindowOfItsOwn)
{
    window_.hide();
    EXPECT_TRUE(write([] {
        ASSERT_NE(panel(), nullptr);
        EXPECT_EQ(panel()->parentWidget(), nullptr);
        EXPECT_FALSE(panel()->windowFlags().testFlag(Qt::FramelessWindowHint));
        QTest::mouseClick(panel()->findChild<QPushButton*>(), Qt::LeftButton);
    }));
    EXPECT_EQ(panel(), nullptr);
}

TEST_F(PatienceTest, ItsButtonIsReachedWhileLongWorkHoldsBackTheOthers)
{
    QtProgress progress;
    LongWork work(progress, "Filtern");
    QTest::qSleep(120); // Now it would be shown.
    EXPECT_TRUE(work(1, 2));
    EXPECT_TRUE(write([] { QTest::mouseClick(panel()->findChild<QPushButton*>(), Qt::LeftButton); }));
    EXPECT_TRUE(work(2, 2)) << "the work itself was not given up";
}

TEST_F(PatienceTest, NothingElseUsesTheConnectionAndAllGoesOnAfterwards)
{
    EXPECT_EQ(cell(0), u"b");
    EXPECT_FALSE(write([this] {
        QTest::mouseClick(&button_, Qt::LeftButton);
        QTest::keyClick(&button_, Qt::Key_Space);
        // All that makes a grid read cells it does not have.
        grid_.scrollToBottom();
        grid_.resizeColumnsToContents();
        grid_.viewport()->repaint();
        EXPECT_EQ(cell(3999), u"");
        EXPECT_EQ(connection_.open(), true);
        EXPECT_THROW(rows_.cell(3000, "Bild"), RuntimeError);
        release();
    }));
    EXPECT_EQ(panel(), nullptr);
    EXPECT_EQ(cell(3999), u"b");
    EXPECT_TRUE(QTest::qWaitFor([this] { return foreign_ > 0; })) << "the timer comes again";
    timer_.stop();
    foreign_ = 0;
    QTest::mouseClick(&button_, Qt::LeftButton);
    EXPECT_EQ(foreign_, 1);
    EXPECT_TRUE(window_.updatesEnabled());
    EXPECT_TRUE(boxes_.shown.empty());
}

} // namespace
} // namespace quelvarn
