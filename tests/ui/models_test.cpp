#include "database/connection.h"
#include "database/open_engine.h"
#include "database/recordset.h"
#include "database/recordset_columns.h"
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

using Check = QAbstractItemModelTester::FailureReportingMode;

void fill(Recordset& rows, int count)
{
    rows.appendField("DokuBez", FieldType::Text);
    rows.appendField("Menge", FieldType::FloatingPoint);
    rows.Open();
    for (int i = 0; i < count; ++i) {
        rows.AddNew();
        rows.setField("DokuBez", "A-" + std::to_string(i));
        rows.setField("Menge", i + 0.5);
        rows.Update();
    }
}

TEST(GridModel, ShowsTheRowsOfARecordset)
{
    Recordset rows;
    fill(rows, 3);
    GridModel model({{"Dokumentname", "DokuBez"}, {"Menge", "Menge"}});
    const QAbstractItemModelTester contract(&model, Check::Fatal);
    EXPECT_EQ(model.rowCount(), 0);

    EXPECT_TRUE(model.display(&rows, 1));
    EXPECT_EQ(model.rowCount(), 3);
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), u"Menge");
    EXPECT_EQ(model.index(2, 0).data().toString(), u"A-2");
    EXPECT_EQ(model.index(1, 1).data().toString(), u"1,5");

    rows.Filter("DokuBez = 'A-1'");
    EXPECT_TRUE(model.display(&rows, 2));
    EXPECT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.index(0, 0).data().toString(), u"A-1");
    EXPECT_TRUE(model.display(nullptr, 2));
    EXPECT_EQ(model.rowCount(), 0);
}

// The database cannot be read for a while.
TEST(GridModel, AFaultIsToldOnceAndTheNextOperationReadsAgain)
{
    const TempFolder folder;
    FakeBoxes boxes;
    const SlotGuard guard(boxes, [] {});
    const auto engine = openSqlite(folder / "test.qv", true);
    const auto fill = [&] {
        engine->createTable({"Tafel", {{"Wort"}, {"Bild"}}, {}});
        const sql::Assignment values[] = {{"Wort", "w"}, {"Bild", "b"}};
        engine->insert("Tafel", values);
        engine->insert("Tafel", values);
    };
    fill();
    Connection connection;
    connection.Open(folder / "test.qv");
    Recordset rows;
    setWholeLimit(rows, 1);
    rows.Open("Select * From Tafel Order By Wort", connection);
    GridModel model(std::vector<GridColumn>{{"Bild", "Bild"}});
    model.display(&rows, 1);
    const auto cell = [&] { return model.index(1, 0).data().toString(); };
    engine->removeTable("Tafel");
    boxes.answer();
    for (int operation = 0; operation < 3; ++operation) {
        model.display(&rows, 1);
        EXPECT_EQ(cell(), u"");
        QTest::qWait(10);
    }
    EXPECT_EQ(boxes.shown.size(), 1U);
    fill();
    EXPECT_EQ(cell(), u"") << "not before an operation";
    const QSignalSpy drawn(&model, &QAbstractItemModel::dataChanged);
    model.display(&rows, 1);
    EXPECT_EQ(drawn.count(), 1);
    EXPECT_EQ(cell(), u"b");
}

TEST(GridModel, IsNotBoundAnewWhenOnlyTheRowMoved)
{
    Recordset rows;
    fill(rows, 3);
    GridModel model(std::vector<GridColumn>{{"Dokumentname", "DokuBez"}});
    model.display(&rows, 1);
    const QSignalSpy fresh(&model, &QAbstractItemModel::modelReset);
    rows.MoveLast();
    EXPECT_FALSE(model.display(&rows, 1));
    EXPECT_EQ(fresh.count(), 0);
}

const std::vector<Node> TREE{
    {.text = "Eigenschaften", .children = {{.text = "Dateieigenschaften"}, {.text = "Benutzerdef. Eigenschaften"}}},
    {.text = "Revision", .red = true},
    {.text = "SmartViewer"},
};

TEST(TreeModel, ShowsNodesWithTheirChildren)
{
    TreeModel model;
    const QAbstractItemModelTester contract(&model, Check::Fatal);
    EXPECT_TRUE(model.display(TREE));
    EXPECT_EQ(model.rowCount(), 3);
    const QModelIndex kind = model.find("Dateieigenschaften");
    EXPECT_EQ(kind.parent().data().toString(), u"Eigenschaften");
    EXPECT_EQ(model.rowCount(kind), 0);
    EXPECT_FALSE(model.find("Besteht aus").isValid());
    EXPECT_TRUE(model.find("Revision").data(Qt::ForegroundRole).isValid());
    EXPECT_FALSE(model.find("SmartViewer").data(Qt::ForegroundRole).isValid());

    auto open = TREE;
    open[0].open = true;
    EXPECT_FALSE(model.display(open)) << "unfolding is no other tree";
}

// A view keeps the index of a node it has just reported, while the report replaces the tree.
TEST(TreeModel, AnIndexMayOutliveItsNode)
{
    TreeModel model;
    model.display(TREE);
    const QModelIndex kind = model.find("Benutzerdef. Eigenschaften");
    model.display({{.text = "Eigenschaften"}});
    EXPECT_FALSE(kind.data().isValid());
    EXPECT_EQ(model.rowCount(kind), 0);
}

} // namespace
} // namespace quelvarn
