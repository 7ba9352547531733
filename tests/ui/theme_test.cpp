#include "database/document_types.h"
#include "fakes/temp_folder.h"
#include "ui/adapters/boxes_qt.h"
#include "ui/theme/appearance.h"
#include "ui/theme/colours.h"
#include "ui/theme/icons.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace quelvarn {
namespace {

class DarstellungTest : public testing::TestWithParam<Modus>
{
protected:
    DarstellungTest()
    {
        darstellung_.setzeModus(GetParam());
        darstellung_.wendeAn(*qApp);
    }

    TempFolder ordner_;
    Darstellung darstellung_{QString::fromStdString((ordner_ / "Darstellung.ini").string())};
};

TEST_P(DarstellungTest, TextsStandOutFromTheirGround)
{
    const Farbsatz& farben = farbsatz();
    EXPECT_EQ(farben.dunkel, GetParam() == Modus::Dunkel);
    for (const QColor& text : {farben.text, farben.gedaempft, farben.akzent, farben.warnung}) {
        EXPECT_GE(kontrast(text, farben.flaeche), 4.5) << text.name().toStdString();
        EXPECT_GE(kontrast(text, farben.streifen), 4.5) << text.name().toStdString();
    }
    EXPECT_GE(kontrast(farben.text, farben.auswahl), 4.5);
    for (const StatusText& status : STATUS) {
        EXPECT_GE(kontrast(statusText(status.farbe), farben.flaeche), 4.5) << status.name;
        EXPECT_GE(kontrast(statusPunkt(status.farbe), farben.flaeche), 2.2) << status.name;
    }
}

TEST_P(DarstellungTest, IsRememberedOnThisComputer)
{
    const Darstellung spaeter(QString::fromStdString((ordner_ / "Darstellung.ini").string()));
    EXPECT_EQ(spaeter.modus(), GetParam());
    EXPECT_FALSE(spaeter.fensterFrei());
}

TEST_P(DarstellungTest, PicturesTakeTheColourOfTheText)
{
    const auto gezeichnet = [](QIcon::Mode modus, const QColor& farbe) {
        const QColor mitte = symbol("plus").pixmap(QSize(24, 24), modus).toImage().pixelColor(12, 12);
        return kontrast(mitte, farbe) < 1.05; // But for the softened edge.
    };
    EXPECT_TRUE(gezeichnet(QIcon::Normal, farbsatz().text));
    EXPECT_TRUE(gezeichnet(QIcon::Disabled, farbsatz().inaktiv));
}

INSTANTIATE_TEST_SUITE_P(HellUndDunkel, DarstellungTest, testing::Values(Modus::Hell, Modus::Dunkel));

TEST(Symbole, EachFileCanBeDrawn)
{
    symbol("start").pixmap(16, 16); // Brings the resources in.
    const auto namen = QDir(QStringLiteral(":/quelvarn/icons")).entryList({QStringLiteral("*.svg")});
    EXPECT_GT(namen.size(), 40);
    for (const QString& name : namen) {
        const QImage bild = symbol(name.chopped(4).toStdString()).pixmap(24, 24).toImage();
        bool leer = true;
        for (int i = 0; i < bild.width() * bild.height(); ++i)
            leer = leer && bild.pixelColor(i % bild.width(), i / bild.width()).alpha() == 0;
        EXPECT_FALSE(leer) << name.toStdString();
    }
}

struct Boxfall
{
    Knoepfe knoepfe;
    std::vector<std::string> beschriftungen;
    int gedrueckt; // -1 for Esc
    Antwort antwort;
};

TEST(QtMeldungen, OffersGermanAnswers)
{
    const std::vector<Boxfall> faelle{
        {Knoepfe::Ok, {"OK"}, 0, Antwort::Ok},
        {Knoepfe::OkAbbrechen, {"OK", "Abbrechen"}, 1, Antwort::Abbrechen},
        {Knoepfe::OkAbbrechen, {"OK", "Abbrechen"}, -1, Antwort::Abbrechen},
        {Knoepfe::JaNein, {"&Ja", "&Nein"}, 0, Antwort::Ja},
        {Knoepfe::JaNein, {"&Ja", "&Nein"}, -1, Antwort::Nein},
        {Knoepfe::JaNeinAbbrechen, {"&Ja", "&Nein", "Abbrechen"}, 1, Antwort::Nein},
    };
    for (const Boxfall& fall : faelle) {
        std::vector<std::string> gesehen;
        QTimer::singleShot(0, qApp, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            for (const char* text : {"OK", "&Ja", "&Nein", "Abbrechen"})
                for (QAbstractButton* knopf : box->buttons())
                    if (knopf->text() == QLatin1String(text))
                        gesehen.emplace_back(text);
            EXPECT_EQ(box->text(), u"OK =               weiter");
            if (fall.gedrueckt < 0)
                return box->reject();
            for (QAbstractButton* knopf : box->buttons())
                if (knopf->text().toStdString() == fall.beschriftungen[static_cast<std::size_t>(fall.gedrueckt)])
                    return knopf->click();
        });
        EXPECT_EQ(QtMeldungen().zeige({"Titel", "OK =               weiter", Symbol::Frage, fall.knoepfe}),
                  fall.antwort);
        EXPECT_EQ(gesehen, fall.beschriftungen);
    }
}

} // namespace
} // namespace quelvarn
