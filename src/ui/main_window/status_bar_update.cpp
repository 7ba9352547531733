#include "ui/main_window/status_bar_update.h"

#include "database/document_types.h"
#include "frame/main_window.h"
#include "ui/text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

namespace quelvarn {

namespace {

// An indicator stands behind each text but the first.
bool istAnzeige(std::size_t stelle)
{
    return stelle >= 2 && stelle % 2 == 0;
}

} // namespace

StatusBarUpdate::StatusBarUpdate() : Streifen(Art::Statuszeile, "StatusBarUpdate") {}

void StatusBarUpdate::zeigen(const MainWindow& modell)
{
    if (gebaut_ == modell.statuspanel())
        return;
    baue(modell.statuspanel());
    zeigeAenderungen(aenderungen_);
}

void StatusBarUpdate::baue(const std::vector<std::string>& texte)
{
    gebaut_ = texte;
    panele_.clear();
    while (auto* teil = reihe().takeAt(0)) {
        delete teil->widget();
        delete teil;
    }
    const bool mitAnzeigen = texte.size() > 2;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        const bool anzeige = mitAnzeigen && istAnzeige(i);
        auto* panel = beschriftung(zuQt(texte[i]), Rolle::Klein, QStringLiteral("StatusBarUpdate(%1)").arg(i + 1));
        if (anzeige) {
            panel->setProperty("rolle", QStringLiteral("anzeige"));
            panel->setFixedHeight(15);
            panel->setMinimumWidth(32);
            panel->setAlignment(Qt::AlignCenter);
            panel->setAccessibleName(zuQt(texte[0]) + zuQt(texte[i - 1]));
        } else if (i > 0) {
            reihe().addSpacing(8);
        }
        panele_.push_back(panel);
        reihe().addWidget(panel);
    }
    reihe().addStretch(1);
}

void StatusBarUpdate::zeigeAenderungen(const std::array<std::string, 5>& texte)
{
    aenderungen_ = texte;
    for (std::size_t tab = 0; tab < texte.size(); ++tab) {
        const auto stelle = static_cast<std::size_t>(DOKUTYPEN[tab].aenderungspanel) - 1;
        if (stelle >= panele_.size())
            return;
        QLabel& anzeige = *panele_[stelle];
        anzeige.setText(zuQt(texte[tab]));
        const bool voll = !texte[tab].empty();
        if (anzeige.property("voll").toBool() == voll)
            continue;
        anzeige.setProperty("voll", voll);
        style()->unpolish(&anzeige);
        style()->polish(&anzeige);
    }
}

} // namespace quelvarn
