#pragma once

#include "ui/guard.h"

#include <QKeyEvent>
#include <QModelIndex>
#include <QMouseEvent>

#include <functional>

namespace quelvarn {

// A grid or tree that tells which entry a person chose, by mouse or keyboard, also the same one again. What the
// program shows by itself is told to no one.
template <typename ViewerPlace> class ChoiceView : public ViewerPlace
{
public:
    using ViewerPlace::ViewerPlace;

    std::function<void(const QModelIndex&)> chosen;
    std::function<void(const QModelIndex&)> clicked; // Instead, where a choice by mouse means something else.
    std::function<void(const QModelIndex&)> opened;  // Double click or Enter.
    std::function<void(const QModelIndex&)> entered; // Enter, where it is not the same as a double click.

    void showChosen(const QModelIndex& position)
    {
        if (this->currentIndex() == position)
            return;
        still([&] { this->setCurrentIndex(position); });
    }

    // What happens in here is no choice of a person.
    template <typename Step> void still(const Step& step)
    {
        const bool before = still_;
        still_ = true;
        step();
        still_ = before;
    }

    // Typing must not walk through a million rows.
    void keyboardSearch(const QString& /*text*/) override {}

protected:
    void currentChanged(const QModelIndex& now, const QModelIndex& before) override
    {
        ViewerPlace::currentChanged(now, before);
        if (!still_ && !mouse_ && now.isValid() && now.siblingAtColumn(0) != before.siblingAtColumn(0))
            notify(chosen, now);
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        mouse_ = event->button() == Qt::LeftButton;
        beforeClick_ = this->currentIndex();
        ViewerPlace::mousePressEvent(event);
    }

    // A choice by mouse counts when the button is up again: a message box must not hold it down.
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        ViewerPlace::mouseReleaseEvent(event);
        if (!mouse_)
            return;
        mouse_ = false;
        const QModelIndex now = this->currentIndex();
        const bool met = this->visualRect(now).contains(event->position().toPoint());
        if (now.isValid() && (met || now != beforeClick_))
            notify(clicked ? clicked : chosen, now);
    }

    void mouseDoubleClickEvent(QMouseEvent* event) override
    {
        ViewerPlace::mouseDoubleClickEvent(event);
        const QModelIndex position = this->indexAt(event->position().toPoint());
        if (event->button() == Qt::LeftButton && position.isValid())
            notify(opened, position);
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        const bool input = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (!input || !this->currentIndex().isValid())
            return ViewerPlace::keyPressEvent(event);
        notify(entered ? entered : opened, this->currentIndex());
    }

    // The first focus makes the first entry current.
    void focusInEvent(QFocusEvent* event) override
    {
        still([&] { ViewerPlace::focusInEvent(event); });
    }

private:
    static void notify(const std::function<void(const QModelIndex&)>& whom, const QModelIndex& position)
    {
        if (whom)
            SlotGuard::current().execute([&] { whom(position); });
    }

    bool still_ = false;
    bool mouse_ = false;
    QPersistentModelIndex beforeClick_;
};

} // namespace quelvarn
