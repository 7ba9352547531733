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

class WertekomboTest : public testing::Test
{
protected:
    WertekomboTest()
    {
        kombo_.gewaehlt = [this](const std::string& wert) { gewaehlt_.push_back(wert); };
        kombo_.zeige({"Deckel", "Flansch", "Welle", "Wellenmutter"});
        kombo_.resize(200, 25);
        kombo_.show();
        kombo_.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&kombo_));
        kombo_.setFocus();
    }

    FakeMeldungen meldungen_;
    Waechter waechter_{meldungen_, [] {}};
    Wertekombo kombo_{QStringLiteral("CbEigen(1)")};
    std::vector<std::string> gewaehlt_;
};

TEST_F(WertekomboTest, OnlyAPickOfAPersonIsTold)
{
    kombo_.zeige({"Anker", "Bolzen"});
    for (int mal = 0; mal < 2; ++mal) {
        QTest::keyClick(&kombo_, Qt::Key_Down);
        ASSERT_TRUE(kombo_.view()->isVisible());
        EXPECT_EQ(gewaehlt_.size(), static_cast<std::size_t>(mal)) << "opening the list is no pick";
        kombo_.view()->setCurrentIndex(kombo_.model()->index(1, 0));
        QTest::keyClick(kombo_.view(), Qt::Key_Return);
    }
    EXPECT_EQ(gewaehlt_, (std::vector<std::string>{"Bolzen", "Bolzen"}));
    EXPECT_EQ(kombo_.currentText(), u"Bolzen");
    kombo_.zeige({"Anker", "Bolzen"}, 1);
    EXPECT_EQ(kombo_.currentText(), u"") << "lists read anew";
}

TEST_F(WertekomboTest, TypingNarrowsTheListAndEnterPicks)
{
    QTest::keyClicks(&kombo_, QStringLiteral("mutter"));
    ASSERT_EQ(kombo_.completer()->completionCount(), 1);
    auto* liste = kombo_.completer()->popup();
    ASSERT_TRUE(liste->isVisible());
    QTest::keyClick(liste, Qt::Key_Down);
    QTest::keyClick(liste, Qt::Key_Return);
    EXPECT_EQ(gewaehlt_, std::vector<std::string>{"Wellenmutter"});
    EXPECT_EQ(kombo_.currentText(), u"Wellenmutter");
}

TEST_F(WertekomboTest, WhatMatchesNothingIsTakenBack)
{
    QTest::keyClicks(&kombo_, QStringLiteral("Zahnrad"));
    QTest::keyClick(&kombo_, Qt::Key_Return);
    QTest::keyClick(&kombo_, Qt::Key_Escape);
    EXPECT_EQ(kombo_.currentText(), u"");
    QWheelEvent rad({5, 5}, kombo_.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                    false);
    QApplication::sendEvent(&kombo_, &rad);
    EXPECT_TRUE(gewaehlt_.empty());
}

TEST_F(WertekomboTest, AHundredThousandValuesOpenAtOnce)
{
    std::vector<std::string> werte;
    for (int i = 0; i < 100'000; ++i)
        werte.push_back("Zeichnung " + std::to_string(i));
    QElapsedTimer zeit;
    zeit.start();
    kombo_.zeige(werte);
    kombo_.showPopup();
    QApplication::processEvents();
    kombo_.hidePopup();
    EXPECT_LT(zeit.elapsed(), 400);
}

} // namespace
} // namespace quelvarn
