#include "fakes/test_register.h"
#include "program/program.h"
#include "ui/adapters/viewer_qt.h"
#include "ui/document_page/document_view.h"
#include "ui/guard.h"

#include <QLabel>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace quelvarn {
namespace {

// A session on a register of two parts and a drawing.
class PagesTest : public TestRegister
{
protected:
    PagesTest()
    {
        for (const auto& [table, name] :
             {std::pair("PartTabelle", "A-100"), {"PartTabelle", "A-200"}, {"DraftTabelle", "Z-100"}})
            row(table, {{"DokuBez", name},
                        {"RevBez", "0"},
                        {"Dateiname", std::string(name) + ".par"},
                        {"filename", "W:\\" + std::string(name) + ".par"},
                        {"Status", 3},
                        {"Erstellt", DateTime::from({2010, 1, 25})},
                        {"Geaendert", DateTime::from({2011, 2, 14})}});
    }

    QtViewer viewer_{world_.files};
    Program program_{session_, ports_, viewer_};
    SlotGuard slotGuard_{world_.boxes, [] {}};
};

template <typename Kind> Kind& find(QWidget& page, const char* name)
{
    return *page.findChild<Kind*>(QLatin1String(name));
}

TEST_F(PagesTest, FormSEDokuFollowsItsModelAndFiresNoOperation)
{
    FormSEDoku page(program_, viewer_);
    page.resize(939, 600);
    page.show();
    program_.tabs.StartTabelleZeigen();
    int operations = 0;
    program_.operations.show = [&](const Parts&) { ++operations; };
    page.refresh();
    page.refresh();
    EXPECT_EQ(operations, 0);
    EXPECT_EQ(find<QTableView>(page, "PartDataGrid").model()->rowCount(), 2);

    program_.tabs.chooseRow(1);
    program_.tabs.chooseTab(3);
    operations = 0;
    page.refresh();
    EXPECT_EQ(operations, 0);
    EXPECT_EQ(find<QTabWidget>(page, "SSTabDGDoku").currentIndex(), 3);
    EXPECT_EQ(find<QTableView>(page, "PartDataGrid").currentIndex().row(), 1);
    EXPECT_EQ(find<QLabel>(page, "LblInfo(2)").text(), u"Z-100");
}

TEST_F(PagesTest, EachGestureOnFormSEDokuIsOneOperation)
{
    FormSEDoku page(program_, viewer_);
    page.resize(939, 600);
    page.show();
    program_.tabs.StartTabelleZeigen();
    int operations = 0;
    program_.operations.show = [&](const Parts& parts) {
        if (!contains(parts, Part::Document))
            return page.refreshRows();
        ++operations;
        page.refresh();
    };
    page.refresh();
    auto& grid = find<QTableView>(page, "PartDataGrid");
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(operations, 1);
    EXPECT_EQ(session_.AktDoku.DokuBez, "A-200");

    auto& tree = find<QTreeView>(page, "PartTreeView");
    const QModelIndex properties = tree.model()->index(0, 0);
    tree.setExpanded(properties, false);
    EXPECT_EQ(operations, 2);
    EXPECT_FALSE(program_.tree.tree().roots.at(0).open);
    find<QTabWidget>(page, "SSTabDGDoku").setCurrentIndex(3);
    EXPECT_EQ(session_.AktDoku.DokuBez, "Z-100");
    page.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    QTest::keyClick(&page, Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(program_.tables.tab(), 0);
    EXPECT_TRUE(grid.hasFocus());
}

} // namespace
} // namespace quelvarn
