#include "ui/controls/page_button.h"

#include "ui/guard.h"
#include "ui/text.h"
#include "ui/theme/icons.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QStyle>
#include <QToolButton>

namespace quelvarn {

PageButton::PageButton(std::string_view name, const QString& text, std::string_view picture)
    : icon_(picture), picture_(new QToolButton), text_(new QToolButton)
{
    picture_->setObjectName(QStringLiteral("Img") + toQt(name));
    picture_->setIconSize({16, 16});
    picture_->setFixedSize(16, 16);
    picture_->setFocusPolicy(Qt::NoFocus);
    picture_->setAccessibleName(text);
    text_->setObjectName(QStringLiteral("Lbl") + toQt(name));
    text_->setText(text);
    text_->setFocusPolicy(Qt::TabFocus);
    for (auto* key : {picture_, text_}) {
        key->setAutoRaise(true);
        connect(key, &QToolButton::clicked, this, guardedSlot([this] {
                    if (chosen)
                        chosen();
                }));
    }
    auto* layoutRow = new QHBoxLayout(this);
    layoutRow->setContentsMargins(9, 5, 6, 5);
    layoutRow->setSpacing(1);
    layoutRow->addWidget(picture_);
    layoutRow->addWidget(text_);
    setCursor(Qt::PointingHandCursor);
    showActive(false);
}

void PageButton::showActive(bool active)
{
    if (property("active").toBool() == active && property("active").isValid())
        return;
    setProperty("active", active);
    picture_->setIcon(icon(icon_, active ? QPalette::Link : QPalette::PlaceholderText));
    for (QWidget* part : {static_cast<QWidget*>(this), static_cast<QWidget*>(picture_), static_cast<QWidget*>(text_)}) {
        style()->unpolish(part);
        style()->polish(part);
    }
}

void PageButton::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        text_->click();
}

} // namespace quelvarn
