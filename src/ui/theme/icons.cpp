#include "ui/theme/icons.h"

#include "ui/text.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

static void ladeRessourcen()
{
    Q_INIT_RESOURCE(quelvarn);
}

namespace quelvarn {

namespace {

QByteArray bildtext(const QString& name)
{
    static const bool geladen = (ladeRessourcen(), true);
    Q_UNUSED(geladen)
    QFile datei(QStringLiteral(":/quelvarn/icons/%1.svg").arg(name));
    if (!datei.open(QIODevice::ReadOnly))
        qWarning("no picture named %s", qUtf8Printable(name));
    return datei.readAll();
}

QPixmap gezeichnet(const QString& name, const QSize& groesse, const QColor& farbe)
{
    const QString schluessel =
        QStringLiteral("quelvarn/%1/%2x%3/%4").arg(name).arg(groesse.width()).arg(groesse.height()).arg(farbe.name());
    QPixmap bild;
    if (QPixmapCache::find(schluessel, &bild))
        return bild;
    QSvgRenderer zeichner(bildtext(name).replace("currentColor", farbe.name().toLatin1()));
    bild = QPixmap(groesse);
    bild.fill(Qt::transparent);
    QPainter painter(&bild);
    zeichner.render(&painter, QRectF({0, 0}, groesse));
    QPixmapCache::insert(schluessel, bild);
    return bild;
}

// Draws a picture of the set in the colour that the control's state asks for.
class Symbolzeichner : public QIconEngine
{
public:
    Symbolzeichner(QString name, QPalette::ColorRole rolle) : name_(std::move(name)), rolle_(rolle) {}

    void paint(QPainter* painter, const QRect& platz, QIcon::Mode modus, QIcon::State zustand) override
    {
        const qreal dichte = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        painter->drawPixmap(platz, scaledPixmap(platz.size() * dichte, modus, zustand, dichte));
    }

    QPixmap pixmap(const QSize& groesse, QIcon::Mode modus, QIcon::State zustand) override
    {
        return scaledPixmap(groesse, modus, zustand, 1.0);
    }

    QPixmap scaledPixmap(const QSize& groesse, QIcon::Mode modus, QIcon::State zustand, qreal /*dichte*/) override
    {
        return gezeichnet(name_, groesse, farbe(modus, zustand));
    }

    QIconEngine* clone() const override { return new Symbolzeichner(*this); }

private:
    QColor farbe(QIcon::Mode modus, QIcon::State zustand) const
    {
        const QPalette farben = QGuiApplication::palette();
        if (modus == QIcon::Disabled)
            return farben.color(QPalette::Disabled, QPalette::ButtonText);
        return farben.color(zustand == QIcon::On && rolle_ == QPalette::ButtonText ? QPalette::Link : rolle_);
    }

    QString name_;
    QPalette::ColorRole rolle_;
};

} // namespace

QIcon symbol(std::string_view name, QPalette::ColorRole farbe)
{
    return QIcon(new Symbolzeichner(zuQt(name), farbe));
}

QPixmap symbolbild(std::string_view name, int seite, const QColor& farbe, qreal dichte)
{
    QPixmap bild = gezeichnet(zuQt(name), QSize(seite, seite) * dichte, farbe);
    bild.setDevicePixelRatio(dichte);
    return bild;
}

QIcon programmsymbol()
{
    QIcon ergebnis;
    for (const int seite : {16, 24, 32, 48, 64})
        ergebnis.addPixmap(gezeichnet(QStringLiteral("program"), QSize(seite, seite), Qt::white));
    return ergebnis;
}

} // namespace quelvarn
