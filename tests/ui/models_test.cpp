#include "database/connection.h"
#include "database/new_database.h"
#include "database/recordset.h"
#include "fakes/fake_boxes.h"
#include "fakes/temp_folder.h"
#include "ui/controls/grid_model.h"
#include "ui/document_page/tree_model.h"
#include "ui/guard.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace quelvarn {
namespace {

using Pruefung = QAbstractItemModelTester::FailureReportingMode;

void fuelle(Recordset& zeilen, int anzahl)
{
    zeilen.FeldAnhaengen("DokuBez", FeldTyp::Text);
    zeilen.FeldAnhaengen("Menge", FeldTyp::Gleitkomma);
    zeilen.Open();
    for (int i = 0; i < anzahl; ++i) {
        zeilen.AddNew();
        zeilen.setzeFeld("DokuBez", "A-" + std::to_string(i));
        zeilen.setzeFeld("Menge", i + 0.5);
        zeilen.Update();
    }
}

TEST(Gittermodell, ShowsTheRowsOfARecordset)
{
    Recordset zeilen;
    fuelle(zeilen, 3);
    Gittermodell modell({{"Dokumentname", "DokuBez"}, {"Menge", "Menge"}});
    const QAbstractItemModelTester vertrag(&modell, Pruefung::Fatal);
    EXPECT_EQ(modell.rowCount(), 0);

    EXPECT_TRUE(modell.zeige(&zeilen, 1));
    EXPECT_EQ(modell.rowCount(), 3);
    EXPECT_EQ(modell.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), u"Menge");
    EXPECT_EQ(modell.index(2, 0).data().toString(), u"A-2");
    EXPECT_EQ(modell.index(1, 1).data().toString(), u"1,5");

    zeilen.Filter("DokuBez = 'A-1'");
    EXPECT_TRUE(modell.zeige(&zeilen, 2));
    EXPECT_EQ(modell.rowCount(), 1);
    EXPECT_EQ(modell.index(0, 0).data().toString(), u"A-1");
    EXPECT_TRUE(modell.zeige(nullptr, 2));
    EXPECT_EQ(modell.rowCount(), 0);
}

// The database cannot be read for a while.
TEST(Gittermodell, AFaultIsToldOnceAndTheNextOperationReadsAgain)
{
    const TempFolder folder;
    FakeMeldungen boxes;
    const Waechter guard(boxes, [] {});
    const auto engine = oeffneSqlite(folder / "test.qv", true);
    const auto fill = [&] {
        engine->legeTabelleAn({"Tafel", {{"Wort"}, {"Bild"}}, {}});
        const sql::Zuweisung values[] = {{"Wort", "w"}, {"Bild", "b"}};
        engine->fuegeEin("Tafel", values);
        engine->fuegeEin("Tafel", values);
    };
    fill();
    Connection connection;
    connection.Open(folder / "test.qv");
    Recordset rows;
    rows.setzeGanzGrenze(1);
    rows.Open("Select * From Tafel Order By Wort", connection);
    Gittermodell model(std::vector<Gitterspalte>{{"Bild", "Bild"}});
    model.zeige(&rows, 1);
    const auto cell = [&] { return model.index(1, 0).data().toString(); };
    engine->entferneTabelle("Tafel");
    boxes.antworte();
    for (int operation = 0; operation < 3; ++operation) {
        model.zeige(&rows, 1);
        EXPECT_EQ(cell(), u"");
        QTest::qWait(10);
    }
    EXPECT_EQ(boxes.gezeigt.size(), 1U);
    fill();
    EXPECT_EQ(cell(), u"") << "not before an operation";
    const QSignalSpy drawn(&model, &QAbstractItemModel::dataChanged);
    model.zeige(&rows, 1);
    EXPECT_EQ(drawn.count(), 1);
    EXPECT_EQ(cell(), u"b");
}

TEST(Gittermodell, IsNotBoundAnewWhenOnlyTheRowMoved)
{
    Recordset zeilen;
    fuelle(zeilen, 3);
    Gittermodell modell(std::vector<Gitterspalte>{{"Dokumentname", "DokuBez"}});
    modell.zeige(&zeilen, 1);
    const QSignalSpy neu(&modell, &QAbstractItemModel::modelReset);
    zeilen.MoveLast();
    EXPECT_FALSE(modell.zeige(&zeilen, 1));
    EXPECT_EQ(neu.count(), 0);
}

const std::vector<Knoten> BAUM{
    {.text = "Eigenschaften", .kinder = {{.text = "Dateieigenschaften"}, {.text = "Benutzerdef. Eigenschaften"}}},
    {.text = "Revision", .rot = true},
    {.text = "SmartViewer"},
};

TEST(Baummodell, ShowsNodesWithTheirChildren)
{
    Baummodell modell;
    const QAbstractItemModelTester vertrag(&modell, Pruefung::Fatal);
    EXPECT_TRUE(modell.zeige(BAUM));
    EXPECT_EQ(modell.rowCount(), 3);
    const QModelIndex kind = modell.finde("Dateieigenschaften");
    EXPECT_EQ(kind.parent().data().toString(), u"Eigenschaften");
    EXPECT_EQ(modell.rowCount(kind), 0);
    EXPECT_FALSE(modell.finde("Besteht aus").isValid());
    EXPECT_TRUE(modell.finde("Revision").data(Qt::ForegroundRole).isValid());
    EXPECT_FALSE(modell.finde("SmartViewer").data(Qt::ForegroundRole).isValid());

    auto offen = BAUM;
    offen[0].offen = true;
    EXPECT_FALSE(modell.zeige(offen)) << "unfolding is no other tree";
}

// A view keeps the index of a node it has just reported, while the report replaces the tree.
TEST(Baummodell, AnIndexMayOutliveItsNode)
{
    Baummodell modell;
    modell.zeige(BAUM);
    const QModelIndex kind = modell.finde("Benutzerdef. Eigenschaften");
    modell.zeige({{.text = "Eigenschaften"}});
    EXPECT_FALSE(kind.data().isValid());
    EXPECT_EQ(modell.rowCount(kind), 0);
}

} // namespace
} // namespace quelvarn
