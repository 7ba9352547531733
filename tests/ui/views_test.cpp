#include "base/runtime_error.h"
#include "database/recordset.h"
#include "fakes/fake_boxes.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/grid.h"
#include "ui/guard.h"

#include <QTest>

#include <gtest/gtest.h>

namespace quelvarn {
namespace {

class GridTest : public testing::Test
{
protected:
    GridTest()
    {
        rows_.appendField("DokuBez", FieldType::Text);
        rows_.Open();
        for (const char* name : {"A", "B", "C"}) {
            rows_.AddNew();
            rows_.setField("DokuBez", std::string(name));
            rows_.Update();
        }
        rows_.MoveFirst();
        grid_.chosen = [this](const QModelIndex& position) { chosen_.push_back(position.row()); };
        grid_.opened = [this](const QModelIndex& position) { opened_.push_back(position.row()); };
        grid_.resize(300, 200);
        grid_.show();
        grid_.display(&rows_, 1);
    }

    QPoint middle(int row) { return grid_.visualRect(grid_.model()->index(row, 0)).center(); }
    void click(int row) { QTest::mouseClick(grid_.viewport(), Qt::LeftButton, {}, middle(row)); }

    FakeBoxes boxes_;
    int ends_ = 0;
    SlotGuard slotGuard_{boxes_, [this] { ++ends_; }};
    Recordset rows_;
    Grid grid_{"PartDataGrid", std::vector<GridColumn>{{"Dokumentname", "DokuBez"}}, {100}};
    std::vector<int> chosen_;
    std::vector<int> opened_;
};

TEST_F(GridTest, TellsEachChoiceOfAPersonOnce)
{
    click(1);
    click(1);
    QTest::keyClick(&grid_, Qt::Key_Down);
    EXPECT_EQ(chosen_, (std::vector{1, 1, 2}));
    QTest::keyClick(&grid_, Qt::Key_Return);
    QTest::mouseDClick(grid_.viewport(), Qt::LeftButton, {}, middle(0));
    EXPECT_EQ(opened_, (std::vector{2, 0}));
}

TEST_F(GridTest, WhatTheProgramShowsIsNoChoice)
{
    rows_.MoveLast();
    grid_.display(&rows_, 1);
    EXPECT_EQ(grid_.currentIndex().row(), 2);
    grid_.display(&rows_, 2);
    EXPECT_EQ(grid_.currentIndex().row(), 2) << "bound anew, the row is still marked";
    grid_.setFocus();
    EXPECT_TRUE(chosen_.empty());
}

TEST_F(GridTest, AFaultOfAChoiceEndsInTheErrorReport)
{
    grid_.chosen = [](const QModelIndex&) { throw RuntimeError(3021, "Test", "weg"); };
    boxes_.answer(Answer::Ok);
    click(1);
    EXPECT_EQ(ends_, 0);
    boxes_.answer(Answer::Cancel);
    click(2);
    EXPECT_EQ(ends_, 1);
    EXPECT_EQ(boxes_.last().title, "Fehlermeldung");
}

// A million rows are bound as quickly as three: nothing of them is read or copied.
TEST_F(GridTest, ReadsOnlyTheCellsInSight)
{
    Recordset many;
    many.appendField("Fehlt", FieldType::Text); // Reading the grid's column is a fault.
    many.Open();
    for (int i = 0; i < 5; ++i) {
        many.AddNew();
        many.Update();
    }
    grid_.hide();
    grid_.display(&many, 3);
    QCoreApplication::processEvents();
    EXPECT_EQ(grid_.model()->rowCount(), 5);

    grid_.show();
    boxes_.answer(Answer::Ok); // One report, however many cells cannot be read.
    grid_.grab();
    grid_.grab();
    QCoreApplication::processEvents();
    EXPECT_EQ(boxes_.shown.size(), 1U);
}

TEST(ShortLabel, KeepsItsWholeText)
{
    ShortLabel label;
    label.setText(QStringLiteral("W:\\Konstruktion\\Förderanlagen\\FA-1240"));
    label.resize(60, 20);
    label.grab();
    EXPECT_EQ(label.text(), u"W:\\Konstruktion\\Förderanlagen\\FA-1240");
    EXPECT_LT(label.minimumSizeHint().width(), 60);
}

} // namespace
} // namespace quelvarn
