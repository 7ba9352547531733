#include "fakes/fake_boxes.h"
#include "filter/structure_section.h"
#include "ui/controls/value_list.h"
#include "ui/filter_page/feature_tree.h"
#include "ui/guard.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace quelvarn {
namespace {

using Pfad = std::vector<std::string>;

StructureNode node(std::string value, std::vector<StructureNode> children = {})
{
    return {std::move(value), "", !children.empty(), std::move(children)};
}

TEST(FeatureTreeTest, ALevelReadMeanwhileLeavesTheRestUnfolded)
{
    FeatureTree tree;
    const QAbstractItemModelTester contract(&tree, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QTreeView view;
    view.setModel(&tree);
    StructureNode root = node("", {node("Antrieb"), node("Welle")});
    tree.display(root);
    view.expand(tree.find({}));

    QSignalSpy resetDone(&tree, &QAbstractItemModel::modelReset);
    root.children[1] = {"Welle", "Welle; Anz. 2; ", true, {node("glatt"), node("abgesetzt")}};
    tree.display(root);
    EXPECT_TRUE(view.isExpanded(tree.find({})));
    EXPECT_EQ(resetDone.count(), 0);
    EXPECT_EQ(tree.statusRow(tree.find({"Welle"})), QStringLiteral("Welle; Anz. 2; "));
    const QModelIndex stepped = tree.find({"Welle", "abgesetzt"});
    EXPECT_EQ(tree.documentPath(stepped), (Pfad{"Welle", "abgesetzt"}));
    EXPECT_EQ(tree.documentPath(stepped.parent().parent()), Pfad{});
    EXPECT_FALSE(tree.find({"Antrieb", "abgesetzt"}).isValid());

    tree.display(node("", {node("Lager")}));
    EXPECT_EQ(resetDone.count(), 1);
    EXPECT_EQ(tree.index(0, 0, tree.find({})).data().toString(), QStringLiteral("Lager"));
}

class ValueFieldTest : public testing::Test
{
protected:
    ValueFieldTest()
    {
        list_.chosen = [this](const std::string& value) { chosen_.push_back(value); };
        list_.resize(200, 200);
        list_.show();
    }

    QPoint middle(int row) { return list_.visualRect(list_.model()->index(row, 0)).center(); }

    FakeBoxes boxes_;
    SlotGuard slotGuard_{boxes_, [] {}};
    ValueField list_{QStringLiteral("DLstBenutzDefWert")};
    Pfad chosen_;
};

TEST_F(ValueFieldTest, OnlyAClickOrEnterPicks)
{
    list_.display({"*", "DIN 912", "ISO 4762"});
    list_.mark("*");
    QTest::keyClick(&list_, Qt::Key_Down);
    EXPECT_TRUE(chosen_.empty());
    QTest::keyClick(&list_, Qt::Key_Return);
    QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, middle(2));
    QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, middle(2));
    EXPECT_EQ(chosen_, (Pfad{"DIN 912", "ISO 4762", "ISO 4762"}));
    chosen_.clear();
    QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, middle(0));
    QTest::mouseDClick(list_.viewport(), Qt::LeftButton, {}, middle(0));
    QTest::mouseRelease(list_.viewport(), Qt::LeftButton, {}, middle(0));
    EXPECT_EQ(chosen_.size(), 1U) << "a double click is one pick";
}

TEST_F(ValueFieldTest, APickMayFillTheListAnew)
{
    list_.display({"A", "B"});
    list_.chosen = [this](const std::string& value) {
        list_.display({});
        chosen_.push_back(value);
    };
    QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, middle(1));
    EXPECT_EQ(chosen_, Pfad{"B"});
}

TEST_F(ValueFieldTest, AHundredThousandValuesAreShownAtOnce)
{
    Pfad values;
    for (int i = 0; i < 100'000; ++i)
        values.push_back("Wert " + std::to_string(i));
    QElapsedTimer clock;
    clock.start();
    list_.display(values);
    list_.mark(values.back());
    list_.grab();
    EXPECT_LT(clock.elapsed(), 1000); // Measured: a tenth of it, with each entry laid out by itself many times more.
    EXPECT_EQ(list_.currentIndex().row(), 99'999);
}

} // namespace
} // namespace quelvarn
