#include "database/recordset.h"
#include "fakes/fake_viewer.h"
#include "fakes/temp_folder.h"
#include "fakes/test_register.h"
#include "program/program.h"
#include "ui/adapters/viewer_qt.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/grid.h"
#include "ui/controls/grid_head.h"
#include "ui/controls/long_text.h"
#include "ui/controls/status_marks.h"
#include "ui/controls/value_list.h"
#include "ui/controls/wrapping_label.h"
#include "ui/document_page/document_view.h"
#include "ui/document_page/general_page.h"
#include "ui/document_page/tree_model.h"
#include "ui/guard.h"
#include "ui/theme/appearance.h"
#include "ui/value_text.h"

#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QKeySequence>
#include <QLabel>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>
#include <QToolTip>
#include <QTreeView>

#include <gtest/gtest.h>

namespace quelvarn {
namespace {

// As the program: with its style and style sheet.
void usePrograms(Mode mode = Mode::Light)
{
    const TempFolder folder;
    Appearance appearance{QString::fromStdString((folder / "Darstellung.ini").string())};
    appearance.setMode(mode);
    appearance.apply(*qApp);
}

QString million()
{
    QString text;
    for (int i = 0; i < 1'000'000; ++i)
        text += QChar(u'a' + i % 26);
    return text;
}

TEST(ValueText, FitsThePlaceThatShowsIt)
{
    for (const char16_t* value :
         {u"zwei\nZeilen", u"zwei\r\nZeilen", u"zwei\rZeilen", u"zwei\tZeilen", u"zwei\u2028Zeilen"})
        EXPECT_EQ(oneLine(QString::fromUtf16(value)), u"zwei Zeilen");
    EXPECT_EQ(asLines(QStringLiteral("a\r\nb\n\nc")), u"a\u2028b\u2028\u2028c");
    const QString caption = asCaption(QStringLiteral("Roste & &Gitter\nM8"));
    EXPECT_EQ(caption, u"Roste && &&Gitter M8");
    EXPECT_TRUE(QKeySequence::mnemonic(caption).isEmpty());
    EXPECT_EQ(beginning(QStringLiteral("abc"), 3), u"abc");
    EXPECT_EQ(beginning(million(), 3), u"abc … (999.997 weitere Zeichen)");
    EXPECT_EQ(beginning(QStringLiteral("a😀b"), 2), u"a … (3 weitere Zeichen)") << "no letter is cut in two";
}

TEST(ValueText, ATipHasLinesThatFitOnAScreen)
{
    EXPECT_EQ(asTip(QStringLiteral("  <b>zwei</b>\nZeilen ")), u"<b>zwei</b>\nZeilen");
    const QString sentence = QStringLiteral("Passung H7 statt H8 ").repeated(20).trimmed();
    for (const QString& value : {sentence, million()}) {
        const QStringList lines = asTip(value).split(u'\n');
        EXPECT_LT(lines.size(), 20);
        for (const QString& line : lines)
            EXPECT_LE(line.size(), 101);
    }
    EXPECT_EQ(asTip(sentence).replace(u'\n', QString()), sentence);
}

// --- the general page ------------------------------------------------------------------------------------------

class GeneralPageTest : public testing::Test
{
protected:
    GeneralPageTest()
    {
        usePrograms();
        page_.resize(333, 490);
        page_.refresh({});
        page_.show();
        usePrograms(Mode::Dark); // A new style for widgets that stand already, without a text.
        values_.empty = false;
        values_.Status = "3";
        values_.StatusName = "(Freigegeben)";
        values_.Titel = "Rahmen";
        values_.Geaendert = values_.Erstellt = "14.02.11";
        values_.Bearbeiter = values_.Autor = "Meier";
        values_.heading8 = "Eingebaut:";
        values_.heading39 = "Zeichnung:";
        values_.value9 = values_.value40 = "Nein";
        values_.Dateiname = "A-100.par";
    }

    // Where the text of a label begins and how much room it has.
    QRect place(int index)
    {
        page_.refresh(values_);
        QCoreApplication::processEvents();
        const auto& label = *page_.findChild<QLabel*>(QStringLiteral("LblInfo(%1)").arg(index));
        const QPoint corner = label.mapTo(&page_, label.contentsRect().topLeft());
        return label.isVisible() ? QRect(corner, label.contentsRect().size()) : QRect();
    }

    GeneralView page_;
    GeneralPage values_;
};

TEST_F(GeneralPageTest, ALongValueMovesNoOther)
{
    const QRect date = place(25);
    const QRect author = place(29);
    const int left = place(11).left();
    EXPECT_EQ(date.left(), left) << "all values begin at the same place";
    for (std::string GeneralPage::*field : {&GeneralPage::Bearbeiter, &GeneralPage::Autor, &GeneralPage::value9,
                                            &GeneralPage::StatusName, &GeneralPage::Titel}) {
        const std::string before = values_.*field;
        values_.*field = "Konstruktionsbüro Schröder & Weber in der Außenstelle Hohenstein";
        EXPECT_EQ(place(25).topLeft().x(), left);
        EXPECT_EQ(place(29).left(), author.left());
        const int edge = page_.viewport()->width();
        for (const QLabel* label : page_.findChildren<QLabel*>())
            EXPECT_LE(label->mapTo(&page_, label->rect().topRight()).x(), edge) << label->objectName().toStdString();
        values_.*field = before;
    }
    values_.Autor = "Maximilian Freiherr von Hohenstein-Wallerfeld";
    EXPECT_GE(place(29).height(), 2 * author.height()) << "it is wrapped";
}

TEST_F(GeneralPageTest, ALineBreakIsALineAndAnEmptyLineNone)
{
    const QRect title = place(11);
    values_.Titel = "zwei\r\nZeilen";
    EXPECT_EQ(place(11).height(), 2 * title.height());
    values_.Titel = "Rahmen";

    const int first = place(8).top();
    const int below = place(31).top();
    values_.heading8 = values_.value9 = "";
    values_.heading39 = "Modell:";
    EXPECT_EQ(place(39).top(), first) << "no empty line above";
    EXPECT_LT(place(31).top(), below);
    const int oneLineLess = below - place(31).top();
    values_.heading39 = values_.value40 = "";
    EXPECT_GT(below - place(31).top(), 2 * oneLineLess) << "and the line over both is gone, too";
}

// --- places of one line ----------------------------------------------------------------------------------------

QImage labelWith(const QString& value)
{
    ShortLabel label;
    label.setText(value);
    label.resize(label.sizeHint());
    return label.grab().toImage();
}

QImage statusWith(const QString& value)
{
    StatusCaption label;
    label.setText(value);
    label.resize(label.sizeHint());
    return label.grab().toImage();
}

QImage listWith(const QString& value)
{
    ValueField list(QStringLiteral("LstHW"));
    list.resize(200, 80);
    list.display({value.toStdString(), "B"});
    return list.grab().toImage();
}

QImage treeWith(const QString& value)
{
    TreeModel model;
    QTreeView tree;
    tree.setHeaderHidden(true);
    tree.setModel(&model);
    tree.resize(200, 80);
    Node node;
    node.text = value.toStdString();
    model.display({node, node});
    return tree.grab().toImage();
}

QImage gridWith(const QString& value)
{
    Recordset rows;
    rows.appendField("DokuBez", FieldType::Text);
    rows.Open();
    rows.AddNew();
    rows.setField("DokuBez", value.toStdString());
    rows.Update();
    Grid grid("PartDataGrid", std::vector<GridColumn>{{"Dokumentname", "DokuBez"}}, {100});
    grid.resize(200, 80);
    grid.display(&rows, 1);
    return grid.grab().toImage();
}

TEST(PlacesOfOneLine, ALineBreakIsABlankAndAMillionLettersAreOneLine)
{
    usePrograms();
    const QString value = QStringLiteral("zwei <b>\nZeilen</b> & mehr");
    const QString flat = QStringLiteral("zwei <b> Zeilen</b> & mehr");
    const std::pair<const char*, QImage (*)(const QString&)> places[]{
        {"label", labelWith}, {"status", statusWith}, {"list", listWith}, {"tree", treeWith}, {"grid", gridWith}};
    for (const auto& [name, draw] : places) {
        EXPECT_EQ(draw(value), draw(flat)) << name;
        EXPECT_NE(draw(flat), draw(QStringLiteral("zwei <b>"))) << name << ": the picture shows the second line";
        const QString longest = million().left(1000) + u'…';
        EXPECT_EQ(draw(million()), draw(longest)) << name << " lays out no more than a thousand letters";
    }
}

// --- plain text ------------------------------------------------------------------------------------------------

const QLabel* shownTip()
{
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window->inherits("QTipLabel") && window->isVisible())
            return qobject_cast<const QLabel*>(window);
    return nullptr;
}

TEST(PlainText, MarkupIsShownAsItIs)
{
    usePrograms();
    const QString value = QStringLiteral("<b>Rahmen</b> & <i>Träger</i>");
    QLabel bare(value); // Whoever forgets to say what kind of text it is.
    bare.ensurePolished();
    EXPECT_EQ(bare.textFormat(), Qt::PlainText);

    QWidget window;
    QLabel owner(&window);
    owner.setToolTip(value);
    ShortLabel shortened(&window);
    shortened.setText(value);
    shortened.resize(30, 20);
    ValueField list(QStringLiteral("LstHW"));
    list.setParent(&window);
    list.resize(60, 80);
    list.display({value.toStdString()});
    window.show();
    const QPoint inside(5, 5);
    for (QWidget* place : {static_cast<QWidget*>(&owner), static_cast<QWidget*>(&shortened), list.viewport()}) {
        QHelpEvent ask(QEvent::ToolTip, inside, place->mapToGlobal(inside));
        QApplication::sendEvent(place, &ask);
        const QLabel* tip = shownTip();
        ASSERT_NE(tip, nullptr) << place->metaObject()->className();
        EXPECT_EQ(tip->text(), value);
        EXPECT_EQ(tip->textFormat(), Qt::PlainText) << place->metaObject()->className();
        QToolTip::showText({}, {});
        EXPECT_TRUE(QTest::qWaitFor([] { return shownTip() == nullptr; }));
    }
}

// --- long values -----------------------------------------------------------------------------------------------

TEST(LongTextTest, IsLaidOutInPiecesAndCopiedWhole)
{
    LongText field("TextComments");
    const QString smiles = QStringLiteral("😀").repeated(30'000);
    for (const QString& value : {million(), QStringLiteral("Wort ").repeated(30'000), smiles,
                                 QStringLiteral("kurz\n\n") + million() + QStringLiteral("\nEnde\n"), QString()}) {
        field.showValue(value);
        for (QTextBlock block = field.document()->begin(); block.isValid(); block = block.next()) {
            EXPECT_LE(block.length(), 8001);
            EXPECT_FALSE(block.text().startsWith(u' ') ||
                         (!block.text().isEmpty() && block.text()[0].isLowSurrogate()));
        }
        QApplication::clipboard()->clear();
        field.selectAll();
        field.copy();
        EXPECT_EQ(QApplication::clipboard()->text(), value);
    }
    field.showValue(million());
    QTextCursor part = field.textCursor();
    part.setPosition(7'990);
    part.setPosition(8'011, QTextCursor::KeepAnchor);
    field.setTextCursor(part);
    field.copy();
    EXPECT_EQ(QApplication::clipboard()->text(), million().mid(7'990, 20)) << "over the edge of two pieces";
    field.showValue(million());
    EXPECT_TRUE(field.textCursor().hasSelection()) << "the same value again changes nothing";
}

TEST(WrappingLabel, ShowsTheBeginningOfALongValue)
{
    WrappingLabel label(500);
    label.setText(million());
    EXPECT_LT(label.heightForWidth(200), 40 * label.fontMetrics().height());
    EXPECT_EQ(label.text().size(), 1'000'000);
}

// --- the whole page --------------------------------------------------------------------------------------------

class ValuesOnThePageTest : public TestRegister
{
protected:
    ValuesOnThePageTest()
    {
        usePrograms();
        for (const char* revision : {"0", "A"})
            row("WeldTabelle", {{"DokuBez", "S-100"},
                                {"RevBez", revision},
                                {"Dateiname", "S-100.asm"},
                                {"filename", "W:\\S-100.asm"},
                                {"Status", 3}});
        page_.resize(939, 600);
        page_.show();
        program_.tabs.StartTabelleZeigen();
        program_.tabs.chooseTab(4);
        program_.tabs.chooseRow(1);
        page_.refresh();
        QCoreApplication::processEvents();
    }

    template <typename Kind> Kind& find(const char* name) { return *page_.findChild<Kind*>(QLatin1String(name)); }

    QtViewer viewer_{world_.files};
    SlotGuard guard_{world_.boxes, [] {}};
    Program program_{session_, ports_, viewer_};
    FormSEDoku page_{program_, viewer_};
};

TEST_F(ValuesOnThePageTest, HeadsAreWhole)
{
    ASSERT_TRUE(find<QLabel>("LblNichtVorhanden").isVisible());
    ASSERT_TRUE(find<QLabel>("LblAchtungRev").isVisible());
    const auto& head = find<QLabel>("LblInfo(0)");
    EXPECT_EQ(head.text().trimmed(), u"Eigenschaften Schweißteil");
    EXPECT_GE(head.contentsRect().width(), head.sizeHint().width());

    auto& pages = *find<QWidget>("FrmInfoDoku(1)").parentWidget();
    int grids = 0;
    for (int i = 0; i < static_cast<QStackedWidget&>(pages).count(); ++i) {
        static_cast<QStackedWidget&>(pages).setCurrentIndex(i);
        QTest::qWait(1); // The grid takes on the height of its head a moment later.
        for (const Grid* grid : pages.findChildren<Grid*>()) {
            if (!grid->isVisible())
                continue;
            ++grids;
            const auto& captions = static_cast<const GridHead&>(*grid->horizontalHeader());
            for (int section = 0; section < captions.count(); ++section)
                EXPECT_GE(captions.sectionSize(section), captions.leastWidth(section))
                    << grid->objectName().toStdString() << section;
            EXPECT_GE(captions.height(), captions.sizeHint().height()) << grid->objectName().toStdString();
            EXPECT_EQ(grid->horizontalScrollBar()->maximum(), 0) << grid->objectName().toStdString();
        }
    }
    EXPECT_GE(grids, 5);
    const auto lines = [&](const char* name) {
        const auto& captions = *find<Grid>(name).horizontalHeader();
        return captions.height() / captions.fontMetrics().lineSpacing();
    };
    EXPECT_GE(lines("DataGridSendTo"), 3) << "the longest caption stands in three lines";
    EXPECT_EQ(lines("DataGridRevision"), 1);
}

TEST_F(ValuesOnThePageTest, NoLetterOfATabsNameIsAShortcut)
{
    auto& tabs = find<QTabWidget>("SSTabDGDoku");
    const QString plain = tabs.tabText(5);
    session_.labels.SondertabelleName[0] = "Roste & <Gitter>";
    page_.refresh();
    EXPECT_NE(tabs.tabText(5), plain);
    EXPECT_TRUE(QKeySequence::mnemonic(tabs.tabText(5)).isEmpty());
    EXPECT_EQ(tabs.tabToolTip(5), u"Roste & <Gitter>");
}

} // namespace
} // namespace quelvarn
