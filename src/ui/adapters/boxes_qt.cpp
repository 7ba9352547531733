#include "ui/adapters/boxes_qt.h"

#include "ui/adapters/held_back.h"
#include "ui/text.h"
#include "ui/theme/colours.h"
#include "ui/theme/icons.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <cstdio>
#include <fmt/format.h>
#include <vector>

namespace quelvarn {

namespace {

struct Antwortknopf
{
    Antwort antwort;
    const char* beschriftung;
    QMessageBox::ButtonRole rolle;
};

constexpr Antwortknopf OK{Antwort::Ok, "OK", QMessageBox::AcceptRole};
constexpr Antwortknopf ABBRECHEN{Antwort::Abbrechen, "Abbrechen", QMessageBox::RejectRole};
constexpr Antwortknopf JA{Antwort::Ja, "&Ja", QMessageBox::YesRole};
constexpr Antwortknopf NEIN{Antwort::Nein, "&Nein", QMessageBox::NoRole};

// In the order of their offer. The first one answers Enter, the last one Esc and the closing of the box.
std::vector<Antwortknopf> antworten(Knoepfe knoepfe)
{
    switch (knoepfe) {
    case Knoepfe::OkAbbrechen:
        return {OK, ABBRECHEN};
    case Knoepfe::JaNein:
        return {JA, NEIN};
    case Knoepfe::JaNeinAbbrechen:
        return {JA, NEIN, ABBRECHEN};
    case Knoepfe::Ok:
        break;
    }
    return {OK};
}

// OK goes on; no question is answered by a yes that nobody gave.
Antwort answerWithoutPerson(const Meldung& box)
{
    fmt::print(stderr, "{}: {}\n", box.titel, box.text);
    const auto offered = antworten(box.knoepfe);
    return offered.front().antwort == Antwort::Ok ? Antwort::Ok : offered.back().antwort;
}

QPixmap bild(Symbol art, qreal dichte)
{
    constexpr int SEITE = 32;
    const Farbsatz& farben = farbsatz();
    switch (art) {
    case Symbol::Information:
        return symbolbild("information", SEITE, farben.akzent, dichte);
    case Symbol::Warnung:
        return symbolbild("warning", SEITE, lesbar(farben.hinweis, farben.flaeche, 2.2), dichte);
    case Symbol::Frage:
        return symbolbild("question", SEITE, farben.akzent, dichte);
    case Symbol::Kritisch:
        return symbolbild("critical", SEITE, farben.warnung, dichte);
    case Symbol::Keins:
        break;
    }
    return {};
}

} // namespace

Antwort QtMeldungen::zeige(const Meldung& meldung)
{
    if (alone_)
        return answerWithoutPerson(meldung);
    QMessageBox box(frontWindow());
    box.setWindowTitle(meldung.titel.empty() ? QApplication::applicationName() : zuQt(meldung.titel));
    box.setTextFormat(Qt::PlainText);
    box.setText(zuQt(meldung.text));
    box.setIconPixmap(bild(meldung.symbol, box.devicePixelRatioF()));

    const auto angebot = antworten(meldung.knoepfe);
    std::vector<QPushButton*> knoepfe;
    knoepfe.reserve(angebot.size());
    for (const auto& antwort : angebot)
        knoepfe.push_back(box.addButton(QString::fromUtf8(antwort.beschriftung), antwort.rolle));
    box.setDefaultButton(knoepfe.front());
    box.setEscapeButton(knoepfe.back());

    // A busy pointer must not stand over a question.
    const bool beschaeftigt = QApplication::overrideCursor() != nullptr;
    if (beschaeftigt)
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    box.exec();
    if (beschaeftigt)
        QApplication::restoreOverrideCursor();

    if (alone_) // It was closed, and not by a person.
        return answerWithoutPerson(meldung);
    for (std::size_t i = 0; i < angebot.size(); ++i)
        if (box.clickedButton() == knoepfe[i])
            return angebot[i].antwort;
    return angebot.back().antwort;
}

} // namespace quelvarn
