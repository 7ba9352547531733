#pragma once

#include <QModelIndex>

#include <functional>

class QAbstractItemView;

namespace quelvarn {

// An entry is chosen by a click or by Enter, also the same one again; moving about with the keys chooses nothing.
// A double click is one choice.
void choosesByClick(QAbstractItemView& view, std::function<void(const QModelIndex&)> chosen);

} // namespace quelvarn
