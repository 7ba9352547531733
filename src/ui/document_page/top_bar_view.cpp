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

ObereLeistenansicht::ObereLeistenansicht(ObereLeiste& modell, QObject* eltern)
    : QObject(eltern), modell_(modell), ToolbarSEDokTop_(neueToolbarSEDokTop()),
      FrmFavoriten_(new Favoritenpanel(modell.favoriten()))
{
    for (QAction* knopf : ToolbarSEDokTop_->actions())
        connect(knopf, &QAction::triggered, this,
                bewacht([this, knopf](bool gedrueckt) { klick(knopf->objectName(), gedrueckt); }));
}

void ObereLeistenansicht::klick(const QString& schluessel, bool gedrueckt)
{
    const Sanduhr warten;
    modell_.klick(ausQt(schluessel), gedrueckt);
    zeigen(); // A toggle that the operation refused is up again.
    if (FrmFavoriten_->isVisible() && gedrueckt && schluessel == QStringLiteral("Favoriten...."))
        FrmFavoriten_->nimmFokus();
}

void ObereLeistenansicht::zeigen()
{
    for (QAction* knopf : ToolbarSEDokTop_->actions()) {
        if (knopf->isSeparator())
            continue;
        const std::string schluessel = ausQt(knopf->objectName());
        knopf->setEnabled(modell_.bedienbar(schluessel));
        knopf->setChecked(modell_.gedrueckt(schluessel));
    }
    FrmFavoriten_->zeigen();
}

void ObereLeistenansicht::schliesse()
{
    for (const char* schluessel : {"Anschauen", "Favoriten...."})
        if (modell_.gedrueckt(schluessel))
            modell_.klick(schluessel, false);
}

} // namespace quelvarn
