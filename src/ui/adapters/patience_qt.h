#pragma once

#include "database/patience.h"

#include <QObject>
#include <QPointer>

#include <vector>

class QDialog;
class QLabel;
class QWidget;

namespace quelvarn {

// A panel over the window while a database lets wait, with a button that gives up. The wait goes on inside a statement,
// and nothing else may use the connection meanwhile: no other window is drawn, and input and timers are held back.
class QtPatience final : public QObject, public Patience
{
public: // Without Qt's macro: its compiler does not read the standard library's times.
    QtPatience() = default;
    ~QtPatience() override;

    bool keepWaiting(WaitReason reason, std::chrono::milliseconds waited) override;
    void waitEnded() override;

    // Nobody is there to wait, or to give up: no panel any more, and no long wait.
    void waitAlone() { alone_ = true; }
    // As the person would by the button.
    void giveUp() { givenUp_ = true; }

    // A statement waits: who would read cells now shows what is there.
    static bool isAsking();

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void show(WaitReason reason);
    void freeze();
    void hide();
    bool isOurs(const QObject* receiver) const;

    bool alone_ = false;
    bool givenUp_ = false;
    QPointer<QDialog> panel_;
    QPointer<QLabel> text_;
    QPointer<QWidget> owner_;
    std::vector<QPointer<QWidget>> frozen_; // Windows that are not drawn meanwhile.
};

} // namespace quelvarn
