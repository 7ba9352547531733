#pragma once

#include "platform/progress.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>

class QFrame;

namespace quelvarn {

class ProgressField;

// Progress on the screen: in the field that the page in front lends, else in a panel over the window. The window is
// drawn while the work runs; every input but giving up is held back, so that no operation starts within another.
class QtProgress final : public QObject, public ProgressDisplay
{
    Q_OBJECT

public:
    QtProgress() = default;
    ~QtProgress() override;

    void begin(std::string_view text) override;
    bool step(std::size_t done, std::size_t total) override;
    void end() override;

    bool atWork() const { return depth_ > 0; }
    // As the person would by the button.
    void giveUp() { abandoned_ = true; }

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void show();
    void hide();
    bool isCancel(const QObject* receiver) const;

    int depth_ = 0; // Work within work moves no bar of its own.
    bool abandoned_ = false;
    QString text_;
    QElapsedTimer sinceStart_;
    QElapsedTimer sincePicture_;
    QPointer<ProgressField> field_; // While it is shown.
    QPointer<QFrame> panel_;        // Around the field when it is no page's.
};

} // namespace quelvarn
