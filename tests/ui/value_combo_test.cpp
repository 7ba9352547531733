#include "fakes/fake_boxes.h"
#include "ui/controls/value_combo.h"
#include "ui/guard.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QElapsedTimer>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace quelvarn {
namespace {

class ValueComboTest : public testing::Test
{
protected:
    ValueComboTest()
    {
        combo_.chosen = [this](const std::string& value) { chosen_.push_back(value); };
        combo_.display({"Deckel", "Flansch", "Welle", "Wellenmutter"});
        combo_.resize(200, 25);
        combo_.show();
        combo_.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&combo_));
        combo_.setFocus();
    }

    FakeBoxes boxes_;
    SlotGuard slotGuard_{boxes_, [] {}};
    ValueCombo combo_{QStringLiteral("CbEigen(1)")};
    std::vector<std::string> chosen_;
};

TEST_F(ValueComboTest, OnlyAPickOfAPersonIsTold)
{
    combo_.display({"Anker", "Bolzen"});
    for (int times = 0; times < 2; ++times) {
        QTest::keyClick(&combo_, Qt::Key_Down);
        ASSERT_TRUE(combo_.view()->isVisible());
        EXPECT_EQ(chosen_.size(), static_cast<std::size_t>(times)) << "opening the list is no pick";
        combo_.view()->setCurrentIndex(combo_.model()->index(1, 0));
        QTest::keyClick(combo_.view(), Qt::Key_Return);
    }
    EXPECT_EQ(chosen_, (std::vector<std::string>{"Bolzen", "Bolzen"}));
    EXPECT_EQ(combo_.currentText(), u"Bolzen");
    combo_.display({"Anker", "Bolzen"}, 1);
    EXPECT_EQ(combo_.currentText(), u"") << "lists read anew";
}

TEST_F(ValueComboTest, TypingNarrowsTheListAndEnterPicks)
{
    QTest::keyClicks(&combo_, QStringLiteral("mutter"));
    ASSERT_EQ(combo_.completer()->completionCount(), 1);
    auto* list = combo_.completer()->popup();
    ASSERT_TRUE(list->isVisible());
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(chosen_, std::vector<std::string>{"Wellenmutter"});
    EXPECT_EQ(combo_.currentText(), u"Wellenmutter");
}

TEST_F(ValueComboTest, WhatMatchesNothingIsTakenBack)
{
    QTest::keyClicks(&combo_, QStringLiteral("Zahnrad"));
    QTest::keyClick(&combo_, Qt::Key_Return);
    QTest::keyClick(&combo_, Qt::Key_Escape);
    EXPECT_EQ(combo_.currentText(), u"");
    QWheelEvent wheel({5, 5}, combo_.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&combo_, &wheel);
    EXPECT_TRUE(chosen_.empty());
}

TEST_F(ValueComboTest, AHundredThousandValuesOpenAtOnce)
{
    std::vector<std::string> values;
    for (int i = 0; i < 100'000; ++i)
        values.push_back("Zeichnung " + std::to_string(i));
    QElapsedTimer time;
    time.start();
    combo_.display(values);
    combo_.showPopup();
    QApplication::processEvents();
    combo_.hidePopup();
    EXPECT_LT(time.elapsed(), 400);
}

} // namespace
} // namespace quelvarn
