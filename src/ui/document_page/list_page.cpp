#include "ui/document_page/list_page.h"

#include "register/info_panel.h"
#include "ui/controls/grid.h"
#include "ui/controls/strip.h"
#include "ui/controls/wrapping_label.h"
#include "ui/text.h"

#include <QHBoxLayout>
#include <QLabel>

namespace quelvarn {

namespace {

constexpr qsizetype WHOLE_CELL_LETTERS = 600; // The grid above needs room, too.

} // namespace

Listenseite::Listenseite(InfoPanel& modell, InfoSeite seite, const QString& titel, std::string_view gitter,
                         std::vector<Gitterspalte> spalten, std::vector<int> anteile)
    : modell_(modell), seite_(seite), gitter_(new Gitter(gitter, std::move(spalten), std::move(anteile))),
      aufbau_(new QVBoxLayout(this))
{
    aufbau_->setContentsMargins({});
    aufbau_->setSpacing(0);
    auto* kopf = beschriftung(titel, Rolle::Kopf);
    kopf->setContentsMargins(12, 8, 12, 4);
    aufbau_->addWidget(kopf);
    aufbau_->addWidget(gitter_, 1);
    gitter_->setAccessibleName(titel);
    gitter_->gewaehlt = [this](const QModelIndex& stelle) {
        modell_.details().zeileGewaehlt(seite_, static_cast<std::size_t>(stelle.row()));
    };
}

QHBoxLayout& Listenseite::neueReihe()
{
    auto* reihe = new QHBoxLayout;
    reihe->setContentsMargins(12, 8, 12, 8);
    reihe->setSpacing(12);
    aufbau_->addLayout(reihe);
    return *reihe;
}

void Listenseite::zeigeGanz(std::string_view feld)
{
    auto* ganz = new Umbruchlabel(WHOLE_CELL_LETTERS);
    auto* reihe = new QHBoxLayout;
    reihe->setContentsMargins(10, 6, 12, 4);
    reihe->addWidget(ganz);
    aufbau_->addLayout(reihe);
    folge([this, ganz, feld] {
        const Recordset* liste = modell_.details().liste(seite_);
        const bool zeile = liste != nullptr && !liste->Bof() && !liste->Eof();
        ganz->setText(zeile ? zuQt(liste->Text(feld)) : QString());
        ganz->setVisible(!ganz->text().isEmpty());
    });
}

void Listenseite::setzeOeffnen(std::function<void()> oeffnen)
{
    gitter_->geoeffnet = [oeffnen = std::move(oeffnen)](const QModelIndex& /*stelle*/) { oeffnen(); };
}

void Listenseite::zeigen()
{
    const Detailseiten& details = modell_.details();
    gitter_->zeige(details.liste(seite_), details.fassung());
    for (const auto& schritt : schritte_)
        schritt();
}

} // namespace quelvarn
