#include "ui/adapters/viewer_qt.h"

#include "base/windows_path.h"
#include "platform/files.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/strip.h"
#include "ui/text.h"
#include "ui/theme/colours.h"
#include "ui/theme/document_signs.h"
#include "ui/theme/icons.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace quelvarn {

namespace {

constexpr int BILDSEITE = 64;

} // namespace

Dokumentbild::Dokumentbild()
    : bild_(new QLabel), name_(new KurzLabel(nullptr, Qt::ElideMiddle)),
      ordner_(new KurzLabel(nullptr, Qt::ElideMiddle))
{
    setzeRolle(*name_, Rolle::Kopf);
    setzeRolle(*ordner_, Rolle::Beschriftung);
    name_->setAlignment(Qt::AlignHCenter);
    ordner_->setAlignment(Qt::AlignHCenter);
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(12, 12, 12, 12);
    aufbau->setSpacing(4);
    aufbau->addStretch(1);
    aufbau->addWidget(bild_, 0, Qt::AlignHCenter);
    aufbau->addWidget(name_);
    aufbau->addWidget(ordner_);
    aufbau->addStretch(1);
}

void Dokumentbild::zeige(std::string_view filename)
{
    zeichen_ = filename.empty() ? std::string_view() : dokumentzeichen(filename);
    name_->setText(zuQt(DateiName(filename)));
    ordner_->setText(zuQt(Ordnername(filename)));
    zeichne();
}

void Dokumentbild::zeichne()
{
    bild_->setPixmap(zeichen_.empty() ? QPixmap()
                                      : symbolbild(zeichen_, BILDSEITE, farbsatz().gedaempft, devicePixelRatioF()));
}

void Dokumentbild::changeEvent(QEvent* ereignis)
{
    QWidget::changeEvent(ereignis);
    if (ereignis->type() == QEvent::PaletteChange)
        zeichne();
}

QtViewer::QtViewer(const Dateien& dateien) : dateien_(dateien) {}

bool QtViewer::zeige(Ansicht ansicht, std::string_view filename)
{
    const bool vorhanden = dateien_.dateiVorhanden(filename);
    setze(ansicht, vorhanden ? filename : std::string_view());
    return vorhanden;
}

void QtViewer::leere(Ansicht ansicht)
{
    setze(ansicht, {});
}

void QtViewer::setze(Ansicht ansicht, std::string_view filename)
{
    if (const auto& platz = plaetze_[static_cast<std::size_t>(ansicht)])
        platz->zeige(filename);
}

QWidget& QtViewer::platz(Ansicht ansicht)
{
    auto& platz = plaetze_[static_cast<std::size_t>(ansicht)];
    if (!platz)
        platz = new Dokumentbild;
    return *platz;
}

} // namespace quelvarn
