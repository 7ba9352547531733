#include "fakes/fake_boxes.h"
#include "fakes/temp_folder.h"
#include "ui/controls/picture_area.h"
#include "ui/controls/picture_levels.h"
#include "ui/controls/tiff_view.h"
#include "ui/guard.h"

#include <QImageReader>
#include <QImageWriter>
#include <QLabel>
#include <QTest>
#include <QThreadPool>

#include <array>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quelvarn {
namespace {

class TiffTest : public testing::Test
{
protected:
    TiffTest()
    {
        if (!QImageReader::supportedImageFormats().contains("tiff"))
            skipped_ = true;
    }
    void SetUp() override
    {
        if (skipped_)
            GTEST_SKIP() << "Qt reads no TIFF here";
    }

    QString documentPath(const std::string& name) const { return QString::fromStdString((folder_ / name).string()); }

    QString write(const std::string& name, const QImage& picture)
    {
        QImageWriter writer(documentPath(name), "tiff");
        writer.setCompression(1); // Bits as a fax machine sends them.
        EXPECT_TRUE(writer.write(picture)) << writer.errorString().toStdString();
        return documentPath(name);
    }

    // Pages of eight by eight dots, not compressed, each with its number of black lines.
    QString writePages(int count)
    {
        std::string tiff = "II*";
        const auto number = [&](std::uint32_t value, int bytes) {
            for (int i = 0; i < bytes; ++i)
                tiff += static_cast<char>(value >> (8 * i));
        };
        constexpr std::uint32_t SIDE = 8 + 2 + 9 * 12 + 4;
        tiff.resize(4);
        number(16, 4);
        tiff.resize(8, '\0');
        for (int page = 0; page < count; ++page) {
            const auto begin = static_cast<std::uint32_t>(tiff.size());
            for (int row = 0; row < 8; ++row)
                tiff += row <= page ? '\0' : '\xFF';
            const std::array<std::array<std::uint32_t, 2>, 9> entries{
                {{256, 8}, {257, 8}, {258, 1}, {259, 1}, {262, 1}, {273, begin}, {277, 1}, {278, 8}, {279, 8}}};
            number(9, 2);
            for (const auto& [addressCode, value] : entries) {
                number(addressCode, 2);
                number(4, 2);
                number(1, 4);
                number(value, 4);
            }
            number(page + 1 < count ? begin + SIDE + 8 : 0, 4);
        }
        std::ofstream(folder_ / "seiten.tif", std::ios::binary) << tiff;
        return documentPath("seiten.tif");
    }

    static QImage emptySheet(int width, int height)
    {
        QImage picture(width, height, QImage::Format_Mono);
        picture.fill(1);
        return picture;
    }

    bool skipped_ = false;
    TempFolder folder_;
    FakeBoxes boxes_;
    SlotGuard slotGuard_{boxes_, [] {}};
};

TEST_F(TiffTest, LevelsHalveThePictureOfEveryKind)
{
    for (const auto kind : {QImage::Format_Mono, QImage::Format_Grayscale8, QImage::Format_RGB32,
                            QImage::Format_Indexed8, QImage::Format_ARGB32}) {
        SCOPED_TRACE(kind);
        QImage picture(QSize(2001, 1001), QImage::Format_RGB32);
        picture.fill(Qt::white);
        const PicturePage page = loadPicturePage(write("bild.tif", picture.convertToFormat(kind)), 0);
        ASSERT_EQ(page.levels.size(), 3U);
        EXPECT_EQ(page.levels[1].size(), QSize(1000, 500));
        EXPECT_EQ(page.levels[2].size(), QSize(500, 250));
        EXPECT_EQ(qGray(page.levels[2].pixel(499, 249)), 255);
        EXPECT_EQ(page.sizes, QSizeF(2001, 1001));
    }
}

TEST_F(TiffTest, AThinLineIsStillSeenInTheSmallestLevel)
{
    for (const bool whiteOnBlack : {false, true}) {
        QImage picture = emptySheet(8000, 600);
        for (int y = 0; y < 600; ++y)
            picture.setPixel(4001, y, 0);
        if (whiteOnBlack)
            picture.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
        const PicturePage page = loadPicturePage(write("linie.tif", picture), 0);
        const QImage& smallest = page.levels.back();
        ASSERT_EQ(smallest.width(), 500);
        EXPECT_LT(qGray(smallest.pixel(250, 20)), 225);
        EXPECT_GT(qGray(smallest.pixel(248, 20)), 250);
    }
}

TEST_F(TiffTest, AFaxHasSquareDots)
{
    QImage picture = emptySheet(1728, 1100);
    picture.setDotsPerMeterX(8032);
    picture.setDotsPerMeterY(3858);
    const PicturePage page = loadPicturePage(write("fax.tif", picture), 0);
    EXPECT_NEAR(page.sizes.width(), 1728, 1);
    EXPECT_NEAR(page.sizes.height(), 1100 * 8032.0 / 3858, 3);
}

TEST_F(TiffTest, ALargeScanIsRead)
{
    QImage picture = emptySheet(14043, 9933);
    picture.setPixel(7000, 5000, 0);
    const PicturePage page = loadPicturePage(write("a0.tif", picture), 0);
    ASSERT_FALSE(page.levels.empty());
    EXPECT_EQ(page.levels.front().size(), picture.size());
    EXPECT_EQ(page.levels.front().format(), QImage::Format_Mono);
}

TEST_F(TiffTest, WhatIsNoPictureIsToldOnce)
{
    write("ganz.tif", emptySheet(500, 500));
    std::ifstream whole(folder_ / "ganz.tif", std::ios::binary);
    std::string half(40, '\0');
    whole.read(half.data(), 40);
    std::ofstream(folder_ / "halb.tif", std::ios::binary) << half;
    std::ofstream(folder_ / "text.tif") << "kein Bild";
    std::ofstream(folder_ / "leer.tif");
    TiffView view("PicTiff");
    view.resize(300, 300);
    view.show();
    int fault = 0;
    view.notLoaded = [&] { ++fault; };
    const char* names[] = {"halb.tif", "text.tif", "leer.tif", "fehlt.tif"};
    for (const char* name : names) {
        view.display(documentPath(name));
        QThreadPool::globalInstance()->waitForDone();
        QTest::qWait(10);
    }
    EXPECT_EQ(fault, static_cast<int>(std::size(names)));
}

TEST_F(TiffTest, PagesAreTurnedAndTheLastFileWins)
{
    TiffView view("PicTiff");
    view.resize(400, 300);
    view.show();
    auto& area = *view.findChild<PictureArea*>();
    const auto wait = [&] {
        QThreadPool::globalInstance()->waitForDone();
        QTest::qWait(10);
    };
    view.display(write("erst.tif", emptySheet(900, 900)));
    view.display(writePages(3));
    wait();
    const auto black = [&] {
        int rows = 0;
        for (int y = 0; y < area.page().levels.at(0).height(); ++y)
            rows += qGray(area.page().levels[0].pixel(0, y)) == 0 ? 1 : 0;
        return rows;
    };
    EXPECT_EQ(area.page().count, 3);
    EXPECT_EQ(black(), 1);
    for (const auto& [key, page] :
         {std::pair(Qt::Key_PageDown, 2), {Qt::Key_PageDown, 3}, {Qt::Key_PageDown, 3}, {Qt::Key_PageUp, 2}}) {
        QTest::keyClick(&area, key);
        wait();
        EXPECT_EQ(black(), page);
        EXPECT_EQ(view.findChild<QLabel*>(QStringLiteral("LblSeitePicTiff"))->text(),
                  QStringLiteral("Seite %1 von 3").arg(page));
    }
    view.display({});
    EXPECT_TRUE(area.page().levels.empty());
}

TEST_F(TiffTest, ThePictureFitsUntilItIsZoomed)
{
    PictureArea area;
    area.resize(416, 316);
    area.show();
    area.display(loadPicturePage(write("blatt.tif", emptySheet(4000, 2000)), 0));
    EXPECT_DOUBLE_EQ(area.scale(), 0.1);
    area.resize(816, 616);
    EXPECT_DOUBLE_EQ(area.scale(), 0.2);
    QTest::keyClick(&area, Qt::Key_Plus);
    EXPECT_DOUBLE_EQ(area.scale(), 0.25);
    area.resize(416, 316);
    EXPECT_DOUBLE_EQ(area.scale(), 0.25);
    for (int i = 0; i < 40; ++i)
        area.zoom(2);
    EXPECT_DOUBLE_EQ(area.scale(), 8);
    EXPECT_EQ(area.grab().toImage().pixelColor(200, 150), QColor(Qt::white));
    QTest::keyClick(&area, Qt::Key_0);
    EXPECT_DOUBLE_EQ(area.scale(), 0.1);
}

} // namespace
} // namespace quelvarn
