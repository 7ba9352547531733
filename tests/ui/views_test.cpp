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

class GitterTest : public testing::Test
{
protected:
    GitterTest()
    {
        zeilen_.FeldAnhaengen("DokuBez", FeldTyp::Text);
        zeilen_.Open();
        for (const char* name : {"A", "B", "C"}) {
            zeilen_.AddNew();
            zeilen_.setzeFeld("DokuBez", std::string(name));
            zeilen_.Update();
        }
        zeilen_.MoveFirst();
        gitter_.gewaehlt = [this](const QModelIndex& stelle) { gewaehlt_.push_back(stelle.row()); };
        gitter_.geoeffnet = [this](const QModelIndex& stelle) { geoeffnet_.push_back(stelle.row()); };
        gitter_.resize(300, 200);
        gitter_.show();
        gitter_.zeige(&zeilen_, 1);
    }

    QPoint mitte(int zeile) { return gitter_.visualRect(gitter_.model()->index(zeile, 0)).center(); }
    void klicke(int zeile) { QTest::mouseClick(gitter_.viewport(), Qt::LeftButton, {}, mitte(zeile)); }

    FakeMeldungen meldungen_;
    int enden_ = 0;
    Waechter waechter_{meldungen_, [this] { ++enden_; }};
    Recordset zeilen_;
    Gitter gitter_{"PartDataGrid", std::vector<Gitterspalte>{{"Dokumentname", "DokuBez"}}, {100}};
    std::vector<int> gewaehlt_;
    std::vector<int> geoeffnet_;
};

TEST_F(GitterTest, TellsEachChoiceOfAPersonOnce)
{
    klicke(1);
    klicke(1);
    QTest::keyClick(&gitter_, Qt::Key_Down);
    EXPECT_EQ(gewaehlt_, (std::vector{1, 1, 2}));
    QTest::keyClick(&gitter_, Qt::Key_Return);
    QTest::mouseDClick(gitter_.viewport(), Qt::LeftButton, {}, mitte(0));
    EXPECT_EQ(geoeffnet_, (std::vector{2, 0}));
}

TEST_F(GitterTest, WhatTheProgramShowsIsNoChoice)
{
    zeilen_.MoveLast();
    gitter_.zeige(&zeilen_, 1);
    EXPECT_EQ(gitter_.currentIndex().row(), 2);
    gitter_.zeige(&zeilen_, 2);
    EXPECT_EQ(gitter_.currentIndex().row(), 2) << "bound anew, the row is still marked";
    gitter_.setFocus();
    EXPECT_TRUE(gewaehlt_.empty());
}

TEST_F(GitterTest, AFaultOfAChoiceEndsInTheErrorReport)
{
    gitter_.gewaehlt = [](const QModelIndex&) { throw Laufzeitfehler(3021, "Test", "weg"); };
    meldungen_.antworte(Antwort::Ok);
    klicke(1);
    EXPECT_EQ(enden_, 0);
    meldungen_.antworte(Antwort::Abbrechen);
    klicke(2);
    EXPECT_EQ(enden_, 1);
    EXPECT_EQ(meldungen_.letzte().titel, "Fehlermeldung");
}

// A million rows are bound as quickly as three: nothing of them is read or copied.
TEST_F(GitterTest, ReadsOnlyTheCellsInSight)
{
    Recordset viele;
    viele.FeldAnhaengen("Fehlt", FeldTyp::Text); // Reading the grid's column is a fault.
    viele.Open();
    for (int i = 0; i < 5; ++i) {
        viele.AddNew();
        viele.Update();
    }
    gitter_.hide();
    gitter_.zeige(&viele, 3);
    QCoreApplication::processEvents();
    EXPECT_EQ(gitter_.model()->rowCount(), 5);

    gitter_.show();
    meldungen_.antworte(Antwort::Ok); // One report, however many cells cannot be read.
    gitter_.grab();
    gitter_.grab();
    QCoreApplication::processEvents();
    EXPECT_EQ(meldungen_.gezeigt.size(), 1U);
}

TEST(KurzLabel, KeepsItsWholeText)
{
    KurzLabel label;
    label.setText(QStringLiteral("W:\\Konstruktion\\Förderanlagen\\FA-1240"));
    label.resize(60, 20);
    label.grab();
    EXPECT_EQ(label.text(), u"W:\\Konstruktion\\Förderanlagen\\FA-1240");
    EXPECT_LT(label.minimumSizeHint().width(), 60);
}

} // namespace
} // namespace quelvarn
