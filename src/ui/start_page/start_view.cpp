#include "ui/start_page/start_view.h"

#include "frame/start_page.h"
#include "ui/busy_pointer.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/strip.h"
#include "ui/controls/tool_bar.h"
#include "ui/guard.h"
#include "ui/start_page/file_chooser_view.h"
#include "ui/start_page/settings_view.h"
#include "ui/text.h"

#include <QAction>
#include <QHBoxLayout>
#include <QToolBar>

namespace quelvarn {

FormDB::FormDB(StartPage& modell, QWidget* darstellung)
    : modell_(modell), LabelDB_(new KurzLabel), waehler_(new Dateiwaehler(modell)),
      einstellungen_(new Einstellungen(modell, darstellung)), dateiname_(new KurzLabel),
      pfadname_(new KurzLabel(nullptr, Qt::ElideMiddle))
{
    setObjectName(QStringLiteral("FormDB"));
    auto* mitte = new QHBoxLayout;
    mitte->setContentsMargins(16, 12, 16, 12);
    mitte->setSpacing(16);
    mitte->addWidget(waehler_, 9);
    mitte->addWidget(einstellungen_, 10);

    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(0);
    aufbau->addWidget(neueKopfzeile());
    aufbau->addWidget(neueLeiste());
    aufbau->addLayout(mitte, 1);
    aufbau->addWidget(neueStatuszeile());
    setFocusProxy(waehler_);
}

QWidget* FormDB::neueKopfzeile()
{
    auto* zeile = new Streifen(Streifen::Art::Kopfzeile, "KopfDB");
    LabelDB_->setObjectName(QStringLiteral("LabelDB"));
    setzeRolle(*LabelDB_, Rolle::Titel);
    zeile->reihe().setContentsMargins(4, 0, 16, 0);
    zeile->reihe().addWidget(LabelDB_, 1);
    zeile->reihe().addWidget(beschriftung(QStringLiteral("Laufwerk, Ordner und Datei wählen, dann <Öffnen>"),
                                          Rolle::Klein, QStringLiteral("LblAuswahlDB")));
    return zeile;
}

QWidget* FormDB::neueLeiste()
{
    auto* zeile = new Streifen(Streifen::Art::Leiste, "LeisteDB");
    auto* leiste = quelvarn::neueLeiste("ToolbarDB", Knopfart::TextNebenSymbol);
    auto* oeffnen = fuegeKnopfHinzu(*leiste, {"Öffnen", "Öffnen", "Öffnen der Datenbank", ""});
    leiste->widgetForAction(oeffnen)->setProperty("haupt", true);
    oeffnen->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_O));
    oeffnen->setShortcutContext(Qt::WindowShortcut);
    connect(oeffnen, &QAction::triggered, this, bewacht([this] {
                const Sanduhr warten;
                modell_.oeffnen();
            }));
    auto* verlassen = fuegeKnopfHinzu(*leiste, {"Verlassen", "Verlassen", "Zurück zur Hauptform", "back"});
    connect(verlassen, &QAction::triggered, this, bewacht([this] { modell_.verlassen(); }));
    zeile->reihe().addWidget(leiste);
    return zeile;
}

QWidget* FormDB::neueStatuszeile()
{
    auto* zeile = new Streifen(Streifen::Art::Statuszeile, "StatusBarDB");
    dateiname_->setObjectName(QStringLiteral("StatusBarDB(2)"));
    pfadname_->setObjectName(QStringLiteral("StatusBarDB(4)"));
    zeile->reihe().addWidget(beschriftung(QStringLiteral("Dateiname"), Rolle::Klein, QStringLiteral("StatusBarDB(1)")));
    zeile->reihe().addWidget(dateiname_);
    zeile->reihe().addSpacing(8);
    zeile->reihe().addWidget(beschriftung(QStringLiteral("Pfadname"), Rolle::Klein, QStringLiteral("StatusBarDB(3)")));
    zeile->reihe().addWidget(pfadname_, 1);
    return zeile;
}

void FormDB::zeigen()
{
    LabelDB_->setText(zuQt(modell_.LabelDB()));
    dateiname_->setText(zuQt(modell_.dateinamePanel()));
    pfadname_->setText(zuQt(modell_.pfadnamePanel()));
    waehler_->zeigen();
    einstellungen_->zeigen();
}

} // namespace quelvarn
