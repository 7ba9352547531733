#include "ui/controls/page_button.h"

#include "ui/guard.h"
#include "ui/text.h"
#include "ui/theme/icons.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QStyle>
#include <QToolButton>

namespace quelvarn {

Seitenknopf::Seitenknopf(std::string_view name, const QString& text, std::string_view bild)
    : symbol_(bild), bild_(new QToolButton), text_(new QToolButton)
{
    bild_->setObjectName(QStringLiteral("Img") + zuQt(name));
    bild_->setIconSize({16, 16});
    bild_->setFixedSize(16, 16);
    bild_->setFocusPolicy(Qt::NoFocus);
    bild_->setAccessibleName(text);
    text_->setObjectName(QStringLiteral("Lbl") + zuQt(name));
    text_->setText(text);
    text_->setFocusPolicy(Qt::TabFocus);
    for (auto* taste : {bild_, text_}) {
        taste->setAutoRaise(true);
        connect(taste, &QToolButton::clicked, this, bewacht([this] {
                    if (gewaehlt)
                        gewaehlt();
                }));
    }
    auto* reihe = new QHBoxLayout(this);
    reihe->setContentsMargins(9, 5, 6, 5);
    reihe->setSpacing(1);
    reihe->addWidget(bild_);
    reihe->addWidget(text_);
    setCursor(Qt::PointingHandCursor);
    zeigeAktiv(false);
}

void Seitenknopf::zeigeAktiv(bool aktiv)
{
    if (property("aktiv").toBool() == aktiv && property("aktiv").isValid())
        return;
    setProperty("aktiv", aktiv);
    bild_->setIcon(symbol(symbol_, aktiv ? QPalette::Link : QPalette::PlaceholderText));
    for (QWidget* teil : {static_cast<QWidget*>(this), static_cast<QWidget*>(bild_), static_cast<QWidget*>(text_)}) {
        style()->unpolish(teil);
        style()->polish(teil);
    }
}

void Seitenknopf::mouseReleaseEvent(QMouseEvent* ereignis)
{
    if (ereignis->button() == Qt::LeftButton && rect().contains(ereignis->position().toPoint()))
        text_->click();
}

} // namespace quelvarn
