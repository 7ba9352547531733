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

    QString pfad(const std::string& name) const { return QString::fromStdString((ordner_ / name).string()); }

    QString schreibe(const std::string& name, const QImage& bild)
    {
        QImageWriter schreiber(pfad(name), "tiff");
        schreiber.setCompression(1); // Bits as a fax machine sends them.
        EXPECT_TRUE(schreiber.write(bild)) << schreiber.errorString().toStdString();
        return pfad(name);
    }

    // Pages of eight by eight dots, not compressed, each with its number of black lines.
    QString schreibeSeiten(int anzahl)
    {
        std::string tiff = "II*";
        const auto zahl = [&](std::uint32_t wert, int bytes) {
            for (int i = 0; i < bytes; ++i)
                tiff += static_cast<char>(wert >> (8 * i));
        };
        constexpr std::uint32_t SEITE = 8 + 2 + 9 * 12 + 4;
        tiff.resize(4);
        zahl(16, 4);
        tiff.resize(8, '\0');
        for (int seite = 0; seite < anzahl; ++seite) {
            const auto anfang = static_cast<std::uint32_t>(tiff.size());
            for (int zeile = 0; zeile < 8; ++zeile)
                tiff += zeile <= seite ? '\0' : '\xFF';
            const std::array<std::array<std::uint32_t, 2>, 9> eintraege{
                {{256, 8}, {257, 8}, {258, 1}, {259, 1}, {262, 1}, {273, anfang}, {277, 1}, {278, 8}, {279, 8}}};
            zahl(9, 2);
            for (const auto& [kennung, wert] : eintraege) {
                zahl(kennung, 2);
                zahl(4, 2);
                zahl(1, 4);
                zahl(wert, 4);
            }
            zahl(seite + 1 < anzahl ? anfang + SEITE + 8 : 0, 4);
        }
        std::ofstream(ordner_ / "seiten.tif", std::ios::binary) << tiff;
        return pfad("seiten.tif");
    }

    static QImage leeresBlatt(int breite, int hoehe)
    {
        QImage bild(breite, hoehe, QImage::Format_Mono);
        bild.fill(1);
        return bild;
    }

    bool skipped_ = false;
    TempFolder ordner_;
    FakeMeldungen meldungen_;
    Waechter waechter_{meldungen_, [] {}};
};

TEST_F(TiffTest, LevelsHalveThePictureOfEveryKind)
{
    for (const auto art : {QImage::Format_Mono, QImage::Format_Grayscale8, QImage::Format_RGB32,
                           QImage::Format_Indexed8, QImage::Format_ARGB32}) {
        SCOPED_TRACE(art);
        QImage bild(QSize(2001, 1001), QImage::Format_RGB32);
        bild.fill(Qt::white);
        const Bildseite seite = ladeBildseite(schreibe("bild.tif", bild.convertToFormat(art)), 0);
        ASSERT_EQ(seite.stufen.size(), 3U);
        EXPECT_EQ(seite.stufen[1].size(), QSize(1000, 500));
        EXPECT_EQ(seite.stufen[2].size(), QSize(500, 250));
        EXPECT_EQ(qGray(seite.stufen[2].pixel(499, 249)), 255);
        EXPECT_EQ(seite.masse, QSizeF(2001, 1001));
    }
}

TEST_F(TiffTest, AThinLineIsStillSeenInTheSmallestLevel)
{
    for (const bool weissAufSchwarz : {false, true}) {
        QImage bild = leeresBlatt(8000, 600);
        for (int y = 0; y < 600; ++y)
            bild.setPixel(4001, y, 0);
        if (weissAufSchwarz)
            bild.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
        const Bildseite seite = ladeBildseite(schreibe("linie.tif", bild), 0);
        const QImage& kleinste = seite.stufen.back();
        ASSERT_EQ(kleinste.width(), 500);
        EXPECT_LT(qGray(kleinste.pixel(250, 20)), 225);
        EXPECT_GT(qGray(kleinste.pixel(248, 20)), 250);
    }
}

TEST_F(TiffTest, AFaxHasSquareDots)
{
    QImage bild = leeresBlatt(1728, 1100);
    bild.setDotsPerMeterX(8032);
    bild.setDotsPerMeterY(3858);
    const Bildseite seite = ladeBildseite(schreibe("fax.tif", bild), 0);
    EXPECT_NEAR(seite.masse.width(), 1728, 1);
    EXPECT_NEAR(seite.masse.height(), 1100 * 8032.0 / 3858, 3);
}

TEST_F(TiffTest, ALargeScanIsRead)
{
    QImage bild = leeresBlatt(14043, 9933);
    bild.setPixel(7000, 5000, 0);
    const Bildseite seite = ladeBildseite(schreibe("a0.tif", bild), 0);
    ASSERT_FALSE(seite.stufen.empty());
    EXPECT_EQ(seite.stufen.front().size(), bild.size());
    EXPECT_EQ(seite.stufen.front().format(), QImage::Format_Mono);
}

TEST_F(TiffTest, WhatIsNoPictureIsToldOnce)
{
    schreibe("ganz.tif", leeresBlatt(500, 500));
    std::ifstream ganz(ordner_ / "ganz.tif", std::ios::binary);
    std::string halb(40, '\0');
    ganz.read(halb.data(), 40);
    std::ofstream(ordner_ / "halb.tif", std::ios::binary) << halb;
    std::ofstream(ordner_ / "text.tif") << "kein Bild";
    std::ofstream(ordner_ / "leer.tif");
    TiffAnsicht ansicht("PicTiff");
    ansicht.resize(300, 300);
    ansicht.show();
    int fehler = 0;
    ansicht.nichtGeladen = [&] { ++fehler; };
    const char* namen[] = {"halb.tif", "text.tif", "leer.tif", "fehlt.tif"};
    for (const char* name : namen) {
        ansicht.zeige(pfad(name));
        QThreadPool::globalInstance()->waitForDone();
        QTest::qWait(10);
    }
    EXPECT_EQ(fehler, static_cast<int>(std::size(namen)));
}

TEST_F(TiffTest, PagesAreTurnedAndTheLastFileWins)
{
    TiffAnsicht ansicht("PicTiff");
    ansicht.resize(400, 300);
    ansicht.show();
    auto& flaeche = *ansicht.findChild<Bildflaeche*>();
    const auto warte = [&] {
        QThreadPool::globalInstance()->waitForDone();
        QTest::qWait(10);
    };
    ansicht.zeige(schreibe("erst.tif", leeresBlatt(900, 900)));
    ansicht.zeige(schreibeSeiten(3));
    warte();
    const auto schwarz = [&] {
        int zeilen = 0;
        for (int y = 0; y < flaeche.seite().stufen.at(0).height(); ++y)
            zeilen += qGray(flaeche.seite().stufen[0].pixel(0, y)) == 0 ? 1 : 0;
        return zeilen;
    };
    EXPECT_EQ(flaeche.seite().anzahl, 3);
    EXPECT_EQ(schwarz(), 1);
    for (const auto& [taste, seite] :
         {std::pair(Qt::Key_PageDown, 2), {Qt::Key_PageDown, 3}, {Qt::Key_PageDown, 3}, {Qt::Key_PageUp, 2}}) {
        QTest::keyClick(&flaeche, taste);
        warte();
        EXPECT_EQ(schwarz(), seite);
        EXPECT_EQ(ansicht.findChild<QLabel*>(QStringLiteral("LblSeitePicTiff"))->text(),
                  QStringLiteral("Seite %1 von 3").arg(seite));
    }
    ansicht.zeige({});
    EXPECT_TRUE(flaeche.seite().stufen.empty());
}

TEST_F(TiffTest, ThePictureFitsUntilItIsZoomed)
{
    Bildflaeche flaeche;
    flaeche.resize(416, 316);
    flaeche.show();
    flaeche.zeige(ladeBildseite(schreibe("blatt.tif", leeresBlatt(4000, 2000)), 0));
    EXPECT_DOUBLE_EQ(flaeche.massstab(), 0.1);
    flaeche.resize(816, 616);
    EXPECT_DOUBLE_EQ(flaeche.massstab(), 0.2);
    QTest::keyClick(&flaeche, Qt::Key_Plus);
    EXPECT_DOUBLE_EQ(flaeche.massstab(), 0.25);
    flaeche.resize(416, 316);
    EXPECT_DOUBLE_EQ(flaeche.massstab(), 0.25);
    for (int i = 0; i < 40; ++i)
        flaeche.zoome(2);
    EXPECT_DOUBLE_EQ(flaeche.massstab(), 8);
    EXPECT_EQ(flaeche.grab().toImage().pixelColor(200, 150), QColor(Qt::white));
    QTest::keyClick(&flaeche, Qt::Key_0);
    EXPECT_DOUBLE_EQ(flaeche.massstab(), 0.1);
}

} // namespace
} // namespace quelvarn
