#include "ui/document_page/top_bar_view.h"

#include "register/top_bar.h"
#include "ui/busy_pointer.h"
#include "ui/document_page/panels/favourites_panel.h"
#include "ui/document_page/tool_bars.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QAction>
#include <QToolBar>

namespace quelvarn {

TopBarView::TopBarView(TopBar& model, Favourites& favourites, QObject* parent)
    : QObject(parent), model_(model), ToolbarSEDokTop_(newToolbarSEDokTop()),
      FrmFavoriten_(new FavouritesPanel(favourites))
{
    for (QAction* button : ToolbarSEDokTop_->actions())
        connect(button, &QAction::triggered, this,
                guardedSlot([this, button](bool pressed) { click(button->objectName(), pressed); }));
}

void TopBarView::click(const QString& key, bool pressed)
{
    const BusyCursor wait;
    model_.click(fromQt(key), pressed);
    refresh(); // A toggle that the operation refused is up again.
    if (FrmFavoriten_->isVisible() && pressed && key == QStringLiteral("Favoriten...."))
        FrmFavoriten_->takeFocus();
}

void TopBarView::refresh()
{
    for (QAction* button : ToolbarSEDokTop_->actions()) {
        if (button->isSeparator())
            continue;
        const std::string key = fromQt(button->objectName());
        button->setEnabled(model_.usable(key));
        button->setChecked(model_.pressed(key));
    }
    FrmFavoriten_->refresh();
}

void TopBarView::close()
{
    for (const char* key : {"Anschauen", "Favoriten...."})
        if (model_.pressed(key))
            model_.click(key, false);
}

} // namespace quelvarn
