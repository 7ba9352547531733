#include "ui/controls/picture_levels.h"

#include <QImageReader>

#include <algorithm>
#include <array>
#include <cstdint>
#include <new>

namespace quelvarn {

namespace {

constexpr qint64 SPEICHER_HOECHSTENS = qint64{1} << 30; // bytes of the picture itself
constexpr int KLEINSTE_STUFE = 512;                     // Pixels of the longer side; smaller needs no further level.
constexpr double KLEINSTES_VERHAELTNIS = 0.02;          // Of the resolutions; what lies beyond is no sensible file.

// The mean of an area, a little darker where something dark is in it: thin lines must not fade away.
int verdunkelt(int mittel, int dunkelstes)
{
    return (3 * mittel + dunkelstes) / 4;
}

// For each byte of a line of bits: how many are set in its four pairs, one in each byte of the number.
std::array<std::uint32_t, 256> paarsummen()
{
    std::array<std::uint32_t, 256> summen{};
    for (std::uint32_t byte = 0; byte < summen.size(); ++byte)
        for (std::uint32_t paar = 0; paar < 4; ++paar) {
            const std::uint32_t bits = (byte >> (6 - 2 * paar)) & 3U;
            summen[byte] |= ((bits >> 1U) + (bits & 1U)) << (8 * paar);
        }
    return summen;
}

// The grey of 0 to 4 set bits in a square of four.
std::array<uchar, 5> grautoene(const QImage& bits)
{
    const int aus = qGray(bits.color(0));
    const int an = qGray(bits.color(1));
    std::array<uchar, 5> toene{};
    for (int gesetzt = 0; gesetzt <= 4; ++gesetzt) {
        const int dunkelstes = gesetzt == 0 ? aus : gesetzt == 4 ? an : std::min(an, aus);
        toene[static_cast<std::size_t>(gesetzt)] =
            static_cast<uchar>(verdunkelt((aus * (4 - gesetzt) + an * gesetzt) / 4, dunkelstes));
    }
    return toene;
}

QSize halb(const QSize& groesse)
{
    return {std::max(1, groesse.width() / 2), std::max(1, groesse.height() / 2)};
}

QImage halbiereBits(const QImage& bits)
{
    static const std::array<std::uint32_t, 256> SUMMEN = paarsummen();
    const std::array<uchar, 5> toene = grautoene(bits);
    QImage grau(halb(bits.size()), QImage::Format_Grayscale8);
    for (int y = 0; y < grau.height(); ++y) {
        const uchar* oben = bits.constScanLine(2 * y);
        const uchar* unten = bits.constScanLine(std::min(2 * y + 1, bits.height() - 1));
        uchar* ziel = grau.scanLine(y);
        for (int x = 0; x < grau.width(); ++x) {
            const int byte = x / 4;
            const std::uint32_t summe = SUMMEN[oben[byte]] + SUMMEN[unten[byte]];
            ziel[x] = toene[(summe >> (8 * (x % 4))) & 0xFFU];
        }
    }
    return grau;
}

// Pixels of one byte, or of four with a colour in each.
QImage halbiereBytes(const QImage& bild)
{
    const int kanaele = bild.depth() / 8;
    QImage ergebnis(halb(bild.size()), bild.format());
    const int naechster = bild.width() > 1 ? kanaele : 0;
    for (int y = 0; y < ergebnis.height(); ++y) {
        const uchar* oben = bild.constScanLine(2 * y);
        const uchar* unten = bild.constScanLine(std::min(2 * y + 1, bild.height() - 1));
        uchar* ziel = ergebnis.scanLine(y);
        for (int i = 0; i < ergebnis.width() * kanaele; ++i) {
            const int k = 2 * (i / kanaele) * kanaele + i % kanaele;
            const std::array vier{oben[k], oben[k + naechster], unten[k], unten[k + naechster]};
            const int mittel = (vier[0] + vier[1] + vier[2] + vier[3]) / 4;
            ziel[i] = static_cast<uchar>(verdunkelt(mittel, *std::min_element(vier.begin(), vier.end())));
        }
    }
    return ergebnis;
}

QImage einfachesFormat(QImage bild)
{
    if (bild.depth() == 1)
        return std::move(bild).convertToFormat(QImage::Format_Mono);
    return std::move(bild).convertToFormat(bild.isGrayscale() ? QImage::Format_Grayscale8 : QImage::Format_RGB32);
}

// Fax machines scan with different resolutions across and down.
QSizeF quadratisch(const QImage& bild, bool gedreht)
{
    double quer = bild.dotsPerMeterX();
    double hoch = bild.dotsPerMeterY();
    if (gedreht) // The picture was turned, its resolutions were not.
        std::swap(quer, hoch);
    const bool brauchbar =
        quer > 0 && hoch > 0 && quer / hoch > KLEINSTES_VERHAELTNIS && hoch / quer > KLEINSTES_VERHAELTNIS;
    if (!brauchbar)
        return bild.size();
    const double feinste = std::max(quer, hoch);
    return {bild.width() * feinste / quer, bild.height() * feinste / hoch};
}

bool zuGross(const QImageReader& leser)
{
    const QSize groesse = leser.size();
    const int bits =
        leser.imageFormat() == QImage::Format_Invalid ? 32 : QImage::toPixelFormat(leser.imageFormat()).bitsPerPixel();
    return qint64{groesse.width()} * groesse.height() / 8 * bits > SPEICHER_HOECHSTENS;
}

Bildseite lade(const QString& datei, int nummer)
{
    QImageReader::setAllocationLimit(0); // It counts four bytes for each dot of a scan; zuGross knows better.
    QImageReader leser(datei);
    leser.setDecideFormatFromContent(true);
    leser.setAutoTransform(true);
    Bildseite seite{nummer, std::max(leser.imageCount(), 1), {}, {}};
    if (nummer > 0 && !leser.jumpToImage(nummer))
        return seite;
    if (zuGross(leser))
        return seite;
    const bool gedreht = leser.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    QImage bild = leser.read();
    if (bild.isNull())
        return seite;
    seite.masse = quadratisch(bild, gedreht);
    seite.stufen.push_back(einfachesFormat(std::move(bild)));
    while (std::max(seite.stufen.back().width(), seite.stufen.back().height()) > KLEINSTE_STUFE) {
        const QImage& letzte = seite.stufen.back();
        QImage kleiner = letzte.depth() == 1 ? halbiereBits(letzte) : halbiereBytes(letzte);
        if (kleiner.isNull())
            return {nummer, seite.anzahl, {}, {}};
        seite.stufen.push_back(std::move(kleiner));
    }
    return seite;
}

} // namespace

Bildseite ladeBildseite(const QString& datei, int nummer)
{
    try {
        return lade(datei, nummer);
    } catch (const std::bad_alloc&) {
        return {nummer, 1, {}, {}};
    }
}

} // namespace quelvarn
