#include "ui/document_page/file_picture.h"

#include "register/detail_pages.h"
#include "ui/controls/long_text.h"
#include "ui/controls/strip.h"
#include "ui/controls/tiff_view.h"
#include "ui/text.h"

#include <QLabel>
#include <QVBoxLayout>

namespace quelvarn {

namespace {

QString systempfad(const Detailseiten& details, const std::string& pfad)
{
    return pfad.empty() ? QString() : QString::fromStdU16String(details.systempfad(pfad).u16string());
}

} // namespace

Dateibildansicht::Dateibildansicht(Detailseiten& details)
    : details_(details), PicZusDoku_(new TiffAnsicht("PicZusDoku")), OLEAppZusDoku_(new LongText("OLEAppZusDoku"))
{
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins({});
    aufbau->addWidget(PicZusDoku_);
    aufbau->addWidget(OLEAppZusDoku_);
    PicZusDoku_->nichtGeladen = [this] { details_.bildNichtGeladen(InfoSeite::ZusDoku); };
    hide();
}

void Dateibildansicht::zeigen()
{
    const Dateibild& bild = details_.grafikZusDoku();
    PicZusDoku_->zeige(systempfad(details_, bild.datei));
    PicZusDoku_->setVisible(bild.art == Dateibild::Art::Bild);
    OLEAppZusDoku_->showValue(zuQt(bild.text));
    OLEAppZusDoku_->setVisible(bild.art == Dateibild::Art::Text);
    setVisible(bild.art != Dateibild::Art::Keins);
}

Tiffseite::Tiffseite(Detailseiten& details) : details_(details), bild_(new TiffAnsicht("PicTiff"))
{
    auto* kopf = beschriftung(QStringLiteral("TIFF-Dokument"), Rolle::Kopf);
    kopf->setContentsMargins(12, 8, 12, 4);
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(0);
    aufbau->addWidget(kopf);
    aufbau->addWidget(bild_, 1);
    bild_->nichtGeladen = [this] { details_.bildNichtGeladen(InfoSeite::Tiff); };
}

void Tiffseite::zeigen()
{
    bild_->zeige(systempfad(details_, details_.tiff()));
}

} // namespace quelvarn
