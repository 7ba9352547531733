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
class SeitenTest : public TestRegister
{
protected:
    SeitenTest()
    {
        for (const auto& [tabelle, name] :
             {std::pair("PartTabelle", "A-100"), {"PartTabelle", "A-200"}, {"DraftTabelle", "Z-100"}})
            zeile(tabelle, {{"DokuBez", name},
                            {"RevBez", "0"},
                            {"Dateiname", std::string(name) + ".par"},
                            {"filename", "W:\\" + std::string(name) + ".par"},
                            {"Status", 3},
                            {"Erstellt", Zeitpunkt::aus({2010, 1, 25})},
                            {"Geaendert", Zeitpunkt::aus({2011, 2, 14})}});
    }

    QtViewer viewer_{welt_.dateien};
    Program program_{session_, ports_, viewer_};
    Waechter waechter_{welt_.meldungen, [] {}};
};

template <typename Art> Art& finde(QWidget& seite, const char* name)
{
    return *seite.findChild<Art*>(QLatin1String(name));
}

TEST_F(SeitenTest, FormSEDokuFollowsItsModelAndFiresNoOperation)
{
    FormSEDoku seite(program_, viewer_);
    seite.resize(939, 600);
    seite.show();
    program_.tabs.StartTabelleZeigen();
    int operationen = 0;
    program_.operations.show = [&](const Parts&) { ++operationen; };
    seite.zeigen();
    seite.zeigen();
    EXPECT_EQ(operationen, 0);
    EXPECT_EQ(finde<QTableView>(seite, "PartDataGrid").model()->rowCount(), 2);

    program_.tabs.chooseRow(1);
    program_.tabs.chooseTab(3);
    operationen = 0;
    seite.zeigen();
    EXPECT_EQ(operationen, 0);
    EXPECT_EQ(finde<QTabWidget>(seite, "SSTabDGDoku").currentIndex(), 3);
    EXPECT_EQ(finde<QTableView>(seite, "PartDataGrid").currentIndex().row(), 1);
    EXPECT_EQ(finde<QLabel>(seite, "LblInfo(2)").text(), u"Z-100");
}

TEST_F(SeitenTest, EachGestureOnFormSEDokuIsOneOperation)
{
    FormSEDoku seite(program_, viewer_);
    seite.resize(939, 600);
    seite.show();
    program_.tabs.StartTabelleZeigen();
    int operationen = 0;
    program_.operations.show = [&](const Parts& parts) {
        if (!contains(parts, Part::Document))
            return seite.refreshRows();
        ++operationen;
        seite.zeigen();
    };
    seite.zeigen();
    auto& gitter = finde<QTableView>(seite, "PartDataGrid");
    QTest::keyClick(&gitter, Qt::Key_Down);
    EXPECT_EQ(operationen, 1);
    EXPECT_EQ(session_.AktDoku.DokuBez, "A-200");

    auto& baum = finde<QTreeView>(seite, "PartTreeView");
    const QModelIndex eigenschaften = baum.model()->index(0, 0);
    baum.setExpanded(eigenschaften, false);
    EXPECT_EQ(operationen, 2);
    EXPECT_FALSE(program_.tree.tree().wurzeln.at(0).offen);
    finde<QTabWidget>(seite, "SSTabDGDoku").setCurrentIndex(3);
    EXPECT_EQ(session_.AktDoku.DokuBez, "Z-100");
    seite.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&seite));
    QTest::keyClick(&seite, Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(program_.tables.tab(), 0);
    EXPECT_TRUE(gitter.hasFocus());
}

} // namespace
} // namespace quelvarn
