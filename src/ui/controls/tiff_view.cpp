#include "ui/controls/tiff_view.h"

#include "ui/controls/picture_area.h"
#include "ui/controls/strip.h"
#include "ui/controls/tool_bar.h"
#include "ui/guard.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QPromise>
#include <QThreadPool>
#include <QToolBar>
#include <QVBoxLayout>

#include <utility>

namespace quelvarn {

namespace {

constexpr double STEP = 1.25; // Of the zoom

QFuture<PicturePage> loadInBackground(const QString& file, int number, std::function<bool()> stillWanted)
{
    auto promise = std::make_shared<QPromise<PicturePage>>();
    QFuture<PicturePage> result = promise->future();
    promise->start();
    QThreadPool::globalInstance()->start([promise, file, number, stillWanted = std::move(stillWanted)] {
        promise->addResult(stillWanted() ? loadPicturePage(file, number) : PicturePage());
        promise->finish();
    });
    return result;
}

} // namespace

TiffView::TiffView(const char* name) : area_(new PictureArea), pageLabel_(new QLabel)
{
    setObjectName(QLatin1String(name));
    area_->setObjectName(QLatin1String(name) + QStringLiteral("Flaeche"));
    bar_ = newButtons(name);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(bar_);
    layout->addWidget(area_, 1);
    setFocusProxy(area_);
    connect(&loader_, &QFutureWatcherBase::finished, this, guardedSlot([this] { loaded(); }));
    display({});
}

TiffView::~TiffView()
{
    ++*wanted_;
}

QToolBar* TiffView::newButtons(const char* name)
{
    auto* bar = newBar(std::string("Tlb") + name, ButtonKind::IconOnly);
    const auto button = [&](const BarButton& description, std::function<void()> act) {
        QAction* action = addBarButton(*bar, description);
        connect(action, &QAction::triggered, this, guardedSlot([act = std::move(act)] { act(); }));
        return action;
    };
    button({"Vergrößern", "Vergrößern", "Vergrößern (+)", "plus"}, [this] { area_->zoom(STEP); });
    button({"Verkleinern", "Verkleinern", "Verkleinern (-)", "minus"}, [this] { area_->zoom(1 / STEP); });
    button({"Einpassen", "Einpassen", "Ganze Seite (0)", "fit"}, [this] { area_->fit(); });
    addStretcher(*bar);
    back_ = button({"Seite zurück", "Seite zurück", "Vorige Seite (Bild auf)", "left"}, [this] { turnPage(-1); });
    pageLabel_->setObjectName(QStringLiteral("LblSeite") + QLatin1String(name));
    setRole(*pageLabel_, TextRole::Small);
    pageField_ = bar->addWidget(pageLabel_);
    before_ = button({"Seite vor", "Seite vor", "Nächste Seite (Bild ab)", "right"}, [this] { turnPage(1); });
    return bar;
}

void TiffView::display(const QString& file)
{
    if (file == file_ && !file.isEmpty())
        return;
    file_ = file;
    for (QAction* action : {back_, pageField_, before_})
        action->setVisible(false);
    bar_->setEnabled(false);
    if (!file.isEmpty())
        return loadPage(0);
    ++*wanted_;
    loader_.setFuture({});
    area_->showText({});
}

void TiffView::loadPage(int number)
{
    area_->showText(QStringLiteral("Die Datei wird geladen ..."));
    const int order = ++*wanted_;
    loader_.setFuture(loadInBackground(file_, number, [order, state = wanted_] { return state->load() == order; }));
}

void TiffView::loaded()
{
    if (file_.isEmpty() || loader_.future().resultCount() == 0)
        return;
    PicturePage page = loader_.result();
    loader_.setFuture({}); // It would keep the picture as well.
    if (page.levels.empty()) {
        display({});
        if (notLoaded)
            notLoaded();
        return;
    }
    bar_->setEnabled(true);
    for (QAction* action : {back_, pageField_, before_})
        action->setVisible(page.count > 1);
    back_->setEnabled(page.number > 0);
    before_->setEnabled(page.number + 1 < page.count);
    pageLabel_->setText(QStringLiteral("Seite %1 von %2").arg(page.number + 1).arg(page.count));
    area_->display(std::move(page));
}

void TiffView::turnPage(int around)
{
    const PicturePage& page = area_->page();
    const int number = page.number + around;
    if (!page.levels.empty() && number >= 0 && number < page.count)
        loadPage(number);
}

void TiffView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown)
        return turnPage(event->key() == Qt::Key_PageUp ? -1 : 1);
    QWidget::keyPressEvent(event);
}

} // namespace quelvarn
