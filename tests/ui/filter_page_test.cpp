#include "fakes/fake_viewer.h"
#include "fakes/test_register.h"
#include "filter/filter_page.h"
#include "program/program.h"
#include "ui/controls/calendar.h"
#include "ui/filter_page/filter_view.h"
#include "ui/guard.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

namespace quelvarn {
namespace {

class FormSEFilternTest : public TestRegister
{
protected:
    FormSEFilternTest()
    {
        zeile("PartTabelle", {{"DokuBez", "A-100"},
                              {"RevBez", "0"},
                              {"Status", 3},
                              {"Projekt", "P1"},
                              {"Geaendert", Zeitpunkt::aus({2026, 11, 2})}});
        program_.tabs.StartTabelleZeigen();
        program_.operations.show = [this](const Parts& parts) {
            if (!contains(parts, Part::FilterPage))
                return;
            ++operationen_;
            seite_.zeigen();
        };
        modell_.zurDokumentseite = [this] { ++verlassen_; };
        welt_.uhr.zeit = Zeitpunkt::aus({2026, 11, 22});
        modell_.OpenFilterPage();
        seite_.resize(939, 600);
        seite_.show();
        seite_.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&seite_));
        operationen_ = 0;
    }

    template <typename Art> Art& finde(const char* name) { return *seite_.findChild<Art*>(QLatin1String(name)); }
    std::string letzterWert() const
    {
        const auto& werte = modell_.kontext().FilterWerteTabelle();
        return werte.empty() ? "" : werte.back().Benennung + " " + werte.back().Wert;
    }

    Waechter waechter_{welt_.meldungen, [] {}};
    FakeViewer viewers_;
    Program program_{session_, ports_, viewers_};
    FilterPage& modell_ = program_.filterPage;
    FormSEFiltern seite_{modell_, *new QWidget};
    int operationen_ = 0;
    int verlassen_ = 0;
};

TEST_F(FormSEFilternTest, FollowsItsModelAndFiresNoOperation)
{
    modell_.eigenschaften().statusGewaehlt(1, true);
    modell_.bereichGewaehlt(Filterbereich::Struktur);
    operationen_ = 0;
    seite_.zeigen();
    EXPECT_EQ(operationen_, 0);
    EXPECT_EQ(finde<QTabWidget>("SSTabDGFilter").currentIndex(), 1);
    EXPECT_TRUE(finde<QAbstractButton>("ChFilterStat(1)").isChecked());
    EXPECT_TRUE(finde<QTableView>("DGFilternWerte").isVisible());
}

TEST_F(FormSEFilternTest, ADayIsPickedByOneClickOrByEnter)
{
    finde<QAbstractButton>("OpDat(1)").click();
    finde<QAbstractButton>("OpDatBegr(2)").click();
    auto& kalender = finde<Kalender>("MonthViewEigen");
    EXPECT_EQ(kalender.selectedDate(), QDate(2026, 11, 22)) << "today";
    auto& tage = *kalender.findChild<QTableView*>(QStringLiteral("qt_calendar_calendarview"));
    QTest::keyClick(&tage, Qt::Key_Left);
    EXPECT_EQ(letzterWert(), "") << "moving about picks nothing";
    QTest::keyClick(&tage, Qt::Key_Return);
    EXPECT_EQ(letzterWert(), "Geaendert <= 21.11.26");
    const QModelIndex sechzehnter = tage.model()->index(4, 0);
    QTest::mouseClick(tage.viewport(), Qt::LeftButton, {}, tage.visualRect(sechzehnter).center());
    EXPECT_EQ(letzterWert(), "Geaendert <= 16.11.26");
    EXPECT_EQ(modell_.kontext().FilterWerteTabelle().size(), 2U);
}

TEST_F(FormSEFilternTest, KeysRunTheFilterAndLeave)
{
    auto& kombo = finde<QComboBox>("CbEigen(1)");
    kombo.setFocus();
    kombo.setCurrentIndex(0);
    Q_EMIT kombo.activated(0);
    EXPECT_EQ(letzterWert(), "Projekt P1");
    EXPECT_EQ(kombo.currentText(), u"P1");
    QTest::keyClick(&seite_, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(program_.tables[0].state(), TableState::Filtered);
    EXPECT_EQ(kombo.currentText(), u"") << "the lists were read anew";

    QTest::keyClicks(&kombo, QStringLiteral("x"));
    QTest::keyClick(&kombo, Qt::Key_Escape);
    EXPECT_EQ(verlassen_, 0) << "takes back what was typed";
    QTest::keyClick(&kombo, Qt::Key_Escape);
    EXPECT_EQ(verlassen_, 1);
}

} // namespace
} // namespace quelvarn
