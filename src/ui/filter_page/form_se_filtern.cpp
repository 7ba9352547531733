#include "ui/filter_page/form_se_filtern.h"

#include "ui/controls/strip.h"

#include <QHBoxLayout>
#include <QLabel>

namespace quelvarn {

FormSEFiltern::FormSEFiltern()
{
    setObjectName(QStringLiteral("FormSEFiltern"));
    auto* kopf = new Streifen(Streifen::Art::Kopfzeile, "KopfSEFiltern");
    kopf->reihe().addWidget(beschriftung(QStringLiteral("    Solid Edge - Filterwerte"), Rolle::Titel,
                                         QStringLiteral("LblKopfFilterWerte")));
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins({});
    aufbau->addWidget(kopf);
    aufbau->addStretch(1);
}

} // namespace quelvarn
