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
        row("PartTabelle", {{"DokuBez", "A-100"},
                            {"RevBez", "0"},
                            {"Status", 3},
                            {"Projekt", "P1"},
                            {"Geaendert", DateTime::from({2026, 11, 2})}});
        program_.tabs.StartTabelleZeigen();
        program_.operations.show = [this](const Parts& parts) {
            if (!contains(parts, Part::FilterPage))
                return;
            ++operations_;
            page_.refresh();
        };
        model_.toDocumentPage = [this] { ++leave_; };
        world_.clock.time = DateTime::from({2026, 11, 22});
        model_.OpenFilterPage();
        page_.resize(939, 600);
        page_.show();
        page_.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&page_));
        operations_ = 0;
    }

    template <typename Kind> Kind& find(const char* name) { return *page_.findChild<Kind*>(QLatin1String(name)); }
    std::string lastValue() const
    {
        const auto& values = model_.context().FilterWerteTabelle();
        return values.empty() ? "" : values.back().Benennung + " " + values.back().value;
    }

    SlotGuard slotGuard_{world_.boxes, [] {}};
    FakeViewer viewers_;
    Program program_{session_, ports_, viewers_};
    FilterPage& model_ = program_.filterPage;
    FormSEFiltern page_{model_, *new QWidget};
    int operations_ = 0;
    int leave_ = 0;
};

TEST_F(FormSEFilternTest, FollowsItsModelAndFiresNoOperation)
{
    model_.properties().statusChosen(1, true);
    model_.sectionChosen(FilterSection::Structure);
    operations_ = 0;
    page_.refresh();
    EXPECT_EQ(operations_, 0);
    EXPECT_EQ(find<QTabWidget>("SSTabDGFilter").currentIndex(), 1);
    EXPECT_TRUE(find<QAbstractButton>("ChFilterStat(1)").isChecked());
    EXPECT_TRUE(find<QTableView>("DGFilternWerte").isVisible());
}

TEST_F(FormSEFilternTest, ADayIsPickedByOneClickOrByEnter)
{
    find<QAbstractButton>("OpDat(1)").click();
    find<QAbstractButton>("OpDatBegr(2)").click();
    auto& calendar = find<Calendar>("MonthViewEigen");
    EXPECT_EQ(calendar.selectedDate(), QDate(2026, 11, 22)) << "today";
    auto& days = *calendar.findChild<QTableView*>(QStringLiteral("qt_calendar_calendarview"));
    QTest::keyClick(&days, Qt::Key_Left);
    EXPECT_EQ(lastValue(), "") << "moving about picks nothing";
    QTest::keyClick(&days, Qt::Key_Return);
    EXPECT_EQ(lastValue(), "Geaendert <= 21.11.26");
    const QModelIndex sixteenth = days.model()->index(4, 0);
    QTest::mouseClick(days.viewport(), Qt::LeftButton, {}, days.visualRect(sixteenth).center());
    EXPECT_EQ(lastValue(), "Geaendert <= 16.11.26");
    EXPECT_EQ(model_.context().FilterWerteTabelle().size(), 2U);
}

TEST_F(FormSEFilternTest, KeysRunTheFilterAndLeave)
{
    auto& combo = find<QComboBox>("CbEigen(1)");
    combo.setFocus();
    combo.setCurrentIndex(0);
    Q_EMIT combo.activated(0);
    EXPECT_EQ(lastValue(), "Projekt P1");
    EXPECT_EQ(combo.currentText(), u"P1");
    QTest::keyClick(&page_, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(program_.tables[0].state(), TableState::Filtered);
    EXPECT_EQ(combo.currentText(), u"") << "the lists were read anew";

    QTest::keyClicks(&combo, QStringLiteral("x"));
    QTest::keyClick(&combo, Qt::Key_Escape);
    EXPECT_EQ(leave_, 0) << "takes back what was typed";
    QTest::keyClick(&combo, Qt::Key_Escape);
    EXPECT_EQ(leave_, 1);
}

} // namespace
} // namespace quelvarn
