#include "ui/controls/click_choice.h"

#include "ui/guard.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace quelvarn {

namespace {

// Enter in a view; what else the view does with the key is of no use here.
class Eingabetaste : public QObject
{
public:
    Eingabetaste(QAbstractItemView& ansicht, std::function<void(const QModelIndex&)> gewaehlt)
        : QObject(&ansicht), ansicht_(ansicht), gewaehlt_(std::move(gewaehlt))
    {}

    bool eventFilter(QObject* /*empfaenger*/, QEvent* ereignis) override
    {
        if (ereignis->type() != QEvent::KeyPress || !ansicht_.currentIndex().isValid())
            return false;
        const int taste = static_cast<QKeyEvent*>(ereignis)->key();
        if (taste != Qt::Key_Return && taste != Qt::Key_Enter)
            return false;
        Waechter::aktuell().fuehreAus([this] { gewaehlt_(ansicht_.currentIndex()); });
        return true;
    }

private:
    QAbstractItemView& ansicht_;
    std::function<void(const QModelIndex&)> gewaehlt_;
};

} // namespace

void waehltPerKlick(QAbstractItemView& ansicht, std::function<void(const QModelIndex&)> gewaehlt)
{
    QObject::connect(&ansicht, &QAbstractItemView::clicked, &ansicht,
                     bewacht([gewaehlt](const QModelIndex& stelle) { gewaehlt(stelle); }));
    ansicht.installEventFilter(new Eingabetaste(ansicht, std::move(gewaehlt)));
}

} // namespace quelvarn
