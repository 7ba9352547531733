#include "ui/controls/progress_field.h"

#include "ui/controls/strip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>
#include <vector>

namespace quelvarn {

namespace {

constexpr int TEILSTRICHE = 1000;

std::vector<Fortschrittsfeld*>& alleFelder()
{
    static std::vector<Fortschrittsfeld*> felder;
    return felder;
}

} // namespace

Fortschrittsfeld::Fortschrittsfeld(const char* balken, const char* text, const char* abbrechen)
    : text_(beschriftung({}, Rolle::Beschriftung, QLatin1String(text))), balken_(new QProgressBar),
      abbrechen_(new QPushButton(QStringLiteral("Abbrechen")))
{
    balken_->setObjectName(QLatin1String(balken));
    balken_->setRange(0, TEILSTRICHE);
    balken_->setTextVisible(false);
    balken_->setMinimumWidth(120);
    abbrechen_->setObjectName(QLatin1String(abbrechen));
    abbrechen_->setFocusPolicy(Qt::NoFocus); // Esc does the same, and the focus stays where it was.
    auto* reihe = new QHBoxLayout(this);
    reihe->setContentsMargins({});
    reihe->addWidget(text_);
    reihe->addWidget(balken_, 1);
    reihe->addWidget(abbrechen_);
    hide();
    alleFelder().push_back(this);
}

Fortschrittsfeld::~Fortschrittsfeld()
{
    std::erase(alleFelder(), this);
}

Fortschrittsfeld* Fortschrittsfeld::geliehenes()
{
    const auto& felder = alleFelder();
    const auto feld = std::find_if(felder.begin(), felder.end(), [](const Fortschrittsfeld* kandidat) {
        return kandidat->verliehen_ && kandidat->parentWidget() != nullptr && kandidat->parentWidget()->isVisible();
    });
    return feld != felder.end() ? *feld : nullptr;
}

void Fortschrittsfeld::setzeText(const QString& text)
{
    text_->setText(text);
}

void Fortschrittsfeld::zeigeStand(std::size_t getan, std::size_t gesamt)
{
    const double anteil = gesamt > 0 ? static_cast<double>(std::min(getan, gesamt)) / static_cast<double>(gesamt) : 0;
    balken_->setValue(static_cast<int>(anteil * TEILSTRICHE));
}

} // namespace quelvarn
