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

struct AnswerButton
{
    Answer answer;
    const char* caption;
    QMessageBox::ButtonRole textRole;
};

constexpr AnswerButton OK{Answer::Ok, "OK", QMessageBox::AcceptRole};
constexpr AnswerButton CANCEL{Answer::Cancel, "Abbrechen", QMessageBox::RejectRole};
constexpr AnswerButton Yes{Answer::Yes, "&Ja", QMessageBox::YesRole};
constexpr AnswerButton NO{Answer::No, "&Nein", QMessageBox::NoRole};

// In the order of their offer. The first one answers Enter, the last one Esc and the closing of the box.
std::vector<AnswerButton> answers(Buttons buttons)
{
    switch (buttons) {
    case Buttons::OkCancel:
        return {OK, CANCEL};
    case Buttons::YesNo:
        return {Yes, NO};
    case Buttons::YesNoCancel:
        return {Yes, NO, CANCEL};
    case Buttons::Ok:
        break;
    }
    return {OK};
}

// OK goes on; no question is answered by a yes that nobody gave.
Answer answerWithoutPerson(const Box& dialog)
{
    fmt::print(stderr, "{}: {}\n", dialog.title, dialog.text);
    const auto offered = answers(dialog.buttons);
    return offered.front().answer == Answer::Ok ? Answer::Ok : offered.back().answer;
}

QPixmap picture(Icon kind, qreal density)
{
    constexpr int SIDE = 32;
    const ColourSet& colours = colourSet();
    switch (kind) {
    case Icon::Information:
        return iconPicture("information", SIDE, colours.accent, density);
    case Icon::Warning:
        return iconPicture("warning", SIDE, readable(colours.indicator, colours.area, 2.2), density);
    case Icon::Question:
        return iconPicture("question", SIDE, colours.accent, density);
    case Icon::Critical:
        return iconPicture("critical", SIDE, colours.warning, density);
    case Icon::None:
        break;
    }
    return {};
}

} // namespace

Answer QtBoxes::show(const Box& box)
{
    if (alone_)
        return answerWithoutPerson(box);
    QMessageBox dialog(frontWindow());
    dialog.setWindowTitle(box.title.empty() ? QApplication::applicationName() : toQt(box.title));
    dialog.setTextFormat(Qt::PlainText);
    dialog.setText(toQt(box.text));
    dialog.setIconPixmap(picture(box.icon, dialog.devicePixelRatioF()));

    const auto offer = answers(box.buttons);
    std::vector<QPushButton*> buttons;
    buttons.reserve(offer.size());
    for (const auto& answer : offer)
        buttons.push_back(dialog.addButton(QString::fromUtf8(answer.caption), answer.textRole));
    dialog.setDefaultButton(buttons.front());
    dialog.setEscapeButton(buttons.back());

    // A busy pointer must not stand over a question.
    const bool busy = QApplication::overrideCursor() != nullptr;
    if (busy)
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    dialog.exec();
    if (busy)
        QApplication::restoreOverrideCursor();

    if (alone_) // It was closed, and not by a person.
        return answerWithoutPerson(box);
    for (std::size_t i = 0; i < offer.size(); ++i)
        if (dialog.clickedButton() == buttons[i])
            return offer[i].answer;
    return offer.back().answer;
}

} // namespace quelvarn
