#pragma once

#include <QAbstractButton>
#include <QAnyStringView>
#include <QSignalBlocker>

namespace quelvarn {

// A frame, a button or a box with its text, and with the name by which it is found.
template <typename Field> Field* newField(QAnyStringView name, const QString& text)
{
    auto* field = new Field(text);
    field->setObjectName(name.toString());
    return field;
}

// As the state has it, not as a choice: no slot hears of it.
inline void showSet(QAbstractButton& button, bool set)
{
    const QSignalBlocker still(&button);
    button.setChecked(set);
}

} // namespace quelvarn
