#include "ui/controls/click_choice.h"

#include "ui/guard.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace quelvarn {

namespace {

// Enter in a view; what else the view does with the key is of no use here.
class EnterKey : public QObject
{
public:
    EnterKey(QAbstractItemView& view, std::function<void(const QModelIndex&)> chosen)
        : QObject(&view), view_(view), chosen_(std::move(chosen))
    {}

    bool eventFilter(QObject* /*receiver*/, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress || !view_.currentIndex().isValid())
            return false;
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
            return false;
        SlotGuard::current().execute([this] { chosen_(view_.currentIndex()); });
        return true;
    }

private:
    QAbstractItemView& view_;
    std::function<void(const QModelIndex&)> chosen_;
};

} // namespace

void choosesByClick(QAbstractItemView& view, std::function<void(const QModelIndex&)> chosen)
{
    QObject::connect(&view, &QAbstractItemView::clicked, &view,
                     guardedSlot([chosen](const QModelIndex& position) { chosen(position); }));
    view.installEventFilter(new EnterKey(view, std::move(chosen)));
}

} // namespace quelvarn
