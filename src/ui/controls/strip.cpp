#include "ui/controls/strip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

namespace quelvarn {

Strip::Strip(Kind kind, const char* name, QWidget* parent) : QFrame(parent), layoutRow_(new QHBoxLayout(this))
{
    setObjectName(QLatin1String(name));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setProperty("lage", kind == Kind::StatusRow ? QStringLiteral("unten") : QStringLiteral("oben"));
    setProperty("art", kind == Kind::Bar ? QStringLiteral("leiste") : QStringLiteral("zeile"));
    setMinimumHeight(kind == Kind::Bar ? 33 : kind == Kind::HeadingRow ? 28 : 25);
    layoutRow_->setContentsMargins(kind == Kind::Bar ? 4 : 10, 0, kind == Kind::Bar ? 4 : 10, 0);
    layoutRow_->setSpacing(kind == Kind::Bar ? 2 : 8);
}

QLabel* caption(const QString& text, TextRole textRole, const QString& name)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setObjectName(name);
    setRole(*label, textRole);
    return label;
}

void setRole(QLabel& label, TextRole textRole)
{
    switch (textRole) {
    case TextRole::Titel:
        return void(label.setProperty("rolle", QStringLiteral("titel")));
    case TextRole::Heading:
        return void(label.setProperty("rolle", QStringLiteral("kopf")));
    case TextRole::Caption:
        return void(label.setProperty("rolle", QStringLiteral("beschriftung")));
    case TextRole::Small:
        return void(label.setProperty("rolle", QStringLiteral("klein")));
    }
}

void showNote(QLabel& label, bool note)
{
    if (label.property("hinweis").toBool() == note)
        return;
    label.setProperty("hinweis", note);
    label.style()->unpolish(&label);
    label.style()->polish(&label);
    label.update();
}

QFrame* separatorLine()
{
    auto* line = new QFrame;
    line->setProperty("rolle", QStringLiteral("linie"));
    return line;
}

} // namespace quelvarn
