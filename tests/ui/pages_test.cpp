#include "database/create.h"
#include "database/engine.h"
#include "fakes/fake_ports.h"
#include "fakes/fake_viewer.h"
#include "fakes/temp_folder.h"
#include "register/document_page.h"
#include "register/left_bar.h"
#include "register/top_bar.h"
#include "session/main_window.h"
#include "session/rights.h"
#include "session/start_page.h"
#include "ui/adapters/viewer_qt.h"
#include "ui/document_page/form_se_doku.h"
#include "ui/guard.h"
#include "ui/start_page/form_db.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace quelvarn {
namespace {

// A session on a register of two parts and a drawing.
class SeitenTest : public testing::Test
{
protected:
    SeitenTest()
    {
        const auto datei = ordner_ / "Werk.mdb";
        legeRegisterAn(*oeffneSqlite(datei, true));
        session_.Verbindung.Open(datei);
        session_.DatenbankPfad = "W:\\Werk.mdb";
        session_.Sichtbar = {1, 1, 1, 1, 1, 1};
        bildeStatusbereich(session_);
        lege("PartTabelle", "A-100");
        lege("PartTabelle", "A-200");
        lege("DraftTabelle", "Z-100");
    }

    void lege(const std::string& tabelle, const std::string& name)
    {
        session_.Verbindung.Execute("INSERT INTO " + tabelle +
                                    " (DokuBez, RevBez, Dateiname, filename, Status, Erstellt, Geaendert) VALUES ('" +
                                    name + "', '0', '" + name + ".par', 'W:\\" + name +
                                    ".par', 3, #01/25/2010#, #02/14/2011#)");
    }

    TempFolder ordner_;
    FakePorts welt_;
    Ports ports_ = welt_.ports();
    SessionState session_;
    FilterState filter_;
    FakeBildschirm bildschirm_;
    QtViewer viewer_{welt_.dateien};
    Waechter waechter_{welt_.meldungen, [] {}};
};

template <typename Art> Art& finde(QWidget& seite, const char* name)
{
    return *seite.findChild<Art*>(QLatin1String(name));
}

TEST_F(SeitenTest, FormSEDokuFollowsItsModelAndFiresNoOperation)
{
    DocumentPage modell(session_, ports_, bildschirm_.gezeigt);
    LinkeLeiste links(session_, ports_, filter_, modell);
    ObereLeiste oben(session_, ports_, modell);
    FormSEDoku seite(modell, links, oben, session_, viewer_);
    seite.resize(939, 600);
    seite.show();
    modell.StartTabelleZeigen();
    int operationen = 0;
    modell.geaendert = [&] { ++operationen; };
    seite.zeigen();
    seite.zeigen();
    EXPECT_EQ(operationen, 0);
    EXPECT_EQ(finde<QTableView>(seite, "PartDataGrid").model()->rowCount(), 2);

    modell.zeileGewaehlt(1);
    modell.tabGewaehlt(3);
    operationen = 0;
    seite.zeigen();
    EXPECT_EQ(operationen, 0);
    EXPECT_EQ(finde<QTabWidget>(seite, "SSTabDGDoku").currentIndex(), 3);
    EXPECT_EQ(finde<QTableView>(seite, "PartDataGrid").currentIndex().row(), 1);
    EXPECT_EQ(finde<QLabel>(seite, "LblInfo(2)").text(), u"Z-100");
}

TEST_F(SeitenTest, EachGestureOnFormSEDokuIsOneOperation)
{
    DocumentPage modell(session_, ports_, bildschirm_.gezeigt);
    LinkeLeiste links(session_, ports_, filter_, modell);
    ObereLeiste oben(session_, ports_, modell);
    FormSEDoku seite(modell, links, oben, session_, viewer_);
    seite.resize(939, 600);
    seite.show();
    modell.StartTabelleZeigen();
    int operationen = 0;
    modell.geaendert = [&] {
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
    EXPECT_FALSE(modell.aktuelleSeite().baum.wurzeln.at(0).offen);
    finde<QTabWidget>(seite, "SSTabDGDoku").setCurrentIndex(3);
    EXPECT_EQ(session_.AktDoku.DokuBez, "Z-100");
    seite.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&seite));
    QTest::keyClick(&seite, Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(modell.tab(), 0);
    EXPECT_TRUE(gitter.hasFocus());
}

TEST_F(SeitenTest, FormDBShowsTheSwitchesAndSetsThem)
{
    MainWindow rahmen(session_, ports_, {});
    StartPage modell(session_, ports_, rahmen);
    FormDB seite(modell, new QWidget);
    seite.show();
    session_.Tree.Verwendung = false;
    session_.OfflineTool = "Druvik";
    int operationen = 0;
    modell.geaendert = [&] { ++operationen; };
    seite.zeigen();
    EXPECT_EQ(operationen, 0);
    EXPECT_TRUE(finde<QAbstractButton>(seite, "ChInfoPrio1(0)").isChecked());
    EXPECT_FALSE(finde<QAbstractButton>(seite, "ChInfoPrio1(1)").isChecked());
    EXPECT_TRUE(finde<QAbstractButton>(seite, "OpOfflinePlot(0)").isChecked());

    finde<QAbstractButton>(seite, "ChInfoPrio2(5)").click();
    EXPECT_FALSE(session_.Tree.Versendet);
    finde<QAbstractButton>(seite, "OpOfflinePlot(1)").click();
    EXPECT_EQ(session_.OfflineTool, "Talvik");
    EXPECT_EQ(operationen, 2);
}

} // namespace
} // namespace quelvarn
