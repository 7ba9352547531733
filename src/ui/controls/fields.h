#pragma once

#include <QAbstractButton>
#include <QAnyStringView>
#include <QSignalBlocker>

namespace quelvarn {

// A frame, a button or a box with its text, and with the name by which it is found.
template <typename Feld> Feld* neuesFeld(QAnyStringView name, const QString& text)
{
    auto* feld = new Feld(text);
    feld->setObjectName(name.toString());
    return feld;
}

// As the state has it, not as a choice: no slot hears of it.
inline void zeigeGesetzt(QAbstractButton& knopf, bool gesetzt)
{
    const QSignalBlocker still(&knopf);
    knopf.setChecked(gesetzt);
}

} // namespace quelvarn
