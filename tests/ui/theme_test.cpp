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

class AppearanceTest : public testing::TestWithParam<Mode>
{
protected:
    AppearanceTest()
    {
        appearance_.setMode(GetParam());
        appearance_.apply(*qApp);
    }

    TempFolder folder_;
    Appearance appearance_{QString::fromStdString((folder_ / "Darstellung.ini").string())};
};

TEST_P(AppearanceTest, TextsStandOutFromTheirGround)
{
    const ColourSet& colours = colourSet();
    EXPECT_EQ(colours.dark, GetParam() == Mode::Dark);
    for (const QColor& text : {colours.text, colours.muted, colours.accent, colours.warning}) {
        EXPECT_GE(contrast(text, colours.area), 4.5) << text.name().toStdString();
        EXPECT_GE(contrast(text, colours.strip), 4.5) << text.name().toStdString();
    }
    EXPECT_GE(contrast(colours.text, colours.selection), 4.5);
    for (const StatusText& status : STATUS) {
        EXPECT_GE(contrast(statusText(status.colour), colours.area), 4.5) << status.name;
        EXPECT_GE(contrast(statusDot(status.colour), colours.area), 2.2) << status.name;
    }
}

TEST_P(AppearanceTest, IsRememberedOnThisComputer)
{
    const Appearance later(QString::fromStdString((folder_ / "Darstellung.ini").string()));
    EXPECT_EQ(later.mode(), GetParam());
    EXPECT_FALSE(later.windowFree());
}

TEST_P(AppearanceTest, PicturesTakeTheColourOfTheText)
{
    const auto drawn = [](QIcon::Mode mode, const QColor& colour) {
        const QColor middle = icon("plus").pixmap(QSize(24, 24), mode).toImage().pixelColor(12, 12);
        return contrast(middle, colour) < 1.05; // But for the softened edge.
    };
    EXPECT_TRUE(drawn(QIcon::Normal, colourSet().text));
    EXPECT_TRUE(drawn(QIcon::Disabled, colourSet().inactive));
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, AppearanceTest, testing::Values(Mode::Light, Mode::Dark));

TEST(Icons, EachFileCanBeDrawn)
{
    icon("start").pixmap(16, 16); // Brings the resources in.
    const auto names = QDir(QStringLiteral(":/quelvarn/icons")).entryList({QStringLiteral("*.svg")});
    EXPECT_GT(names.size(), 40);
    for (const QString& name : names) {
        const QImage picture = icon(name.chopped(4).toStdString()).pixmap(24, 24).toImage();
        bool empty = true;
        for (int i = 0; i < picture.width() * picture.height(); ++i)
            empty = empty && picture.pixelColor(i % picture.width(), i / picture.width()).alpha() == 0;
        EXPECT_FALSE(empty) << name.toStdString();
    }
}

struct BoxCase
{
    Buttons buttons;
    std::vector<std::string> captions;
    int pressed; // -1 for Esc
    Answer answer;
};

TEST(QtBoxes, OffersGermanAnswers)
{
    const std::vector<BoxCase> cases{
        {Buttons::Ok, {"OK"}, 0, Answer::Ok},
        {Buttons::OkCancel, {"OK", "Abbrechen"}, 1, Answer::Cancel},
        {Buttons::OkCancel, {"OK", "Abbrechen"}, -1, Answer::Cancel},
        {Buttons::YesNo, {"&Ja", "&Nein"}, 0, Answer::Yes},
        {Buttons::YesNo, {"&Ja", "&Nein"}, -1, Answer::No},
        {Buttons::YesNoCancel, {"&Ja", "&Nein", "Abbrechen"}, 1, Answer::No},
    };
    for (const BoxCase& testCase : cases) {
        std::vector<std::string> seen;
        QTimer::singleShot(0, qApp, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            for (const char* text : {"OK", "&Ja", "&Nein", "Abbrechen"})
                for (QAbstractButton* button : box->buttons())
                    if (button->text() == QLatin1String(text))
                        seen.emplace_back(text);
            EXPECT_EQ(box->text(), u"OK =               weiter");
            if (testCase.pressed < 0)
                return box->reject();
            for (QAbstractButton* button : box->buttons())
                if (button->text().toStdString() == testCase.captions[static_cast<std::size_t>(testCase.pressed)])
                    return button->click();
        });
        EXPECT_EQ(QtBoxes().show({"Titel", "OK =               weiter", Icon::Question, testCase.buttons}),
                  testCase.answer);
        EXPECT_EQ(seen, testCase.captions);
    }
}

} // namespace
} // namespace quelvarn
