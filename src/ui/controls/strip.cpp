#include "ui/controls/strip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

namespace quelvarn {

Strip::Strip(Kind kind, const char* name, QWidget* parent) : QFrame(parent), layoutRow_(new QHBoxLayout(this))
{
    setObjectName(QLatin1String(name));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setProperty("place", kind == Kind::StatusRow ? QStringLiteral("bottom") : QStringLiteral("top"));
    setProperty("kind", kind == Kind::Bar ? QStringLiteral("bar") : QStringLiteral("row"));
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
        return void(label.setProperty("role", QStringLiteral("title")));
    case TextRole::Heading:
        return void(label.setProperty("role", QStringLiteral("heading")));
    case TextRole::Caption:
        return void(label.setProperty("role", QStringLiteral("caption")));
    case TextRole::Small:
        return void(label.setProperty("role", QStringLiteral("small")));
    }
}

void showNote(QLabel& label, bool note)
{
    if (label.property("note").toBool() == note)
        return;
    label.setProperty("note", note);
    label.style()->unpolish(&label);
    label.style()->polish(&label);
    label.update();
}

QFrame* separatorLine()
{
    auto* line = new QFrame;
    line->setProperty("role", QStringLiteral("line"));
    return line;
}

} // namespace quelvarn
