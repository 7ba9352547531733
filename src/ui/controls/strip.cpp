#include "ui/controls/strip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

namespace quelvarn {

Streifen::Streifen(Art art, const char* name, QWidget* eltern) : QFrame(eltern), reihe_(new QHBoxLayout(this))
{
    setObjectName(QLatin1String(name));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setProperty("lage", art == Art::Statuszeile ? QStringLiteral("unten") : QStringLiteral("oben"));
    setProperty("art", art == Art::Leiste ? QStringLiteral("leiste") : QStringLiteral("zeile"));
    setMinimumHeight(art == Art::Leiste ? 33 : art == Art::Kopfzeile ? 28 : 25);
    reihe_->setContentsMargins(art == Art::Leiste ? 4 : 10, 0, art == Art::Leiste ? 4 : 10, 0);
    reihe_->setSpacing(art == Art::Leiste ? 2 : 8);
}

QLabel* beschriftung(const QString& text, Rolle rolle, const QString& name)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setObjectName(name);
    setzeRolle(*label, rolle);
    return label;
}

void setzeRolle(QLabel& label, Rolle rolle)
{
    switch (rolle) {
    case Rolle::Titel:
        return void(label.setProperty("rolle", QStringLiteral("titel")));
    case Rolle::Kopf:
        return void(label.setProperty("rolle", QStringLiteral("kopf")));
    case Rolle::Beschriftung:
        return void(label.setProperty("rolle", QStringLiteral("beschriftung")));
    case Rolle::Klein:
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

QFrame* trennlinie()
{
    auto* linie = new QFrame;
    linie->setProperty("rolle", QStringLiteral("linie"));
    return linie;
}

} // namespace quelvarn
