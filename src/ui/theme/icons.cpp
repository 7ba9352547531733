#include "ui/theme/icons.h"

#include "ui/text.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

static void loadResources()
{
    Q_INIT_RESOURCE(quelvarn);
}

namespace quelvarn {

namespace {

QByteArray pictureText(const QString& name)
{
    static const bool loaded = (loadResources(), true);
    Q_UNUSED(loaded)
    QFile file(QStringLiteral(":/quelvarn/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        qWarning("no picture named %s", qUtf8Printable(name));
    return file.readAll();
}

QPixmap drawn(const QString& name, const QSize& size, const QColor& colour)
{
    const QString key =
        QStringLiteral("quelvarn/%1/%2x%3/%4").arg(name).arg(size.width()).arg(size.height()).arg(colour.name());
    QPixmap picture;
    if (QPixmapCache::find(key, &picture))
        return picture;
    QSvgRenderer renderer(pictureText(name).replace("currentColor", colour.name().toLatin1()));
    picture = QPixmap(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.render(&painter, QRectF({0, 0}, size));
    QPixmapCache::insert(key, picture);
    return picture;
}

// Draws a picture of the set in the colour that the control's state asks for.
class IconPainter : public QIconEngine
{
public:
    IconPainter(QString name, QPalette::ColorRole textRole) : name_(std::move(name)), role_(textRole) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal density = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        painter->drawPixmap(place, scaledPixmap(place.size() * density, mode, state, density));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1.0);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal /*density*/) override
    {
        return drawn(name_, size, colour(mode, state));
    }

    QIconEngine* clone() const override { return new IconPainter(*this); }

private:
    QColor colour(QIcon::Mode mode, QIcon::State state) const
    {
        const QPalette colours = QGuiApplication::palette();
        if (mode == QIcon::Disabled)
            return colours.color(QPalette::Disabled, QPalette::ButtonText);
        return colours.color(state == QIcon::On && role_ == QPalette::ButtonText ? QPalette::Link : role_);
    }

    QString name_;
    QPalette::ColorRole role_;
};

} // namespace

QIcon icon(std::string_view name, QPalette::ColorRole colour)
{
    return QIcon(new IconPainter(toQt(name), colour));
}

QPixmap iconPicture(std::string_view name, int page, const QColor& colour, qreal density)
{
    QPixmap picture = drawn(toQt(name), QSize(page, page) * density, colour);
    picture.setDevicePixelRatio(density);
    return picture;
}

QIcon programIcon()
{
    QIcon result;
    for (const int page : {16, 24, 32, 48, 64})
        result.addPixmap(drawn(QStringLiteral("program"), QSize(page, page), Qt::white));
    return result;
}

} // namespace quelvarn
