#include "ui/controls/picture_levels.h"

#include <QImageReader>

#include <algorithm>
#include <array>
#include <cstdint>
#include <new>

namespace quelvarn {

namespace {

constexpr qint64 MEMORY_LIMIT = qint64{1} << 30; // bytes of the picture itself
constexpr int SMALLEST_LEVEL = 512;              // Pixels of the longer side; smaller needs no further level.
constexpr double SMALLEST_RATIO = 0.02;          // Of the resolutions; what lies beyond is no sensible file.

// The mean of an area, a little darker where something dark is in it: thin lines must not fade away.
int darkened(int medium, int darkest)
{
    return (3 * medium + darkest) / 4;
}

// For each byte of a line of bits: how many are set in its four pairs, one in each byte of the number.
std::array<std::uint32_t, 256> pairSums()
{
    std::array<std::uint32_t, 256> sums{};
    for (std::uint32_t byte = 0; byte < sums.size(); ++byte)
        for (std::uint32_t pair = 0; pair < 4; ++pair) {
            const std::uint32_t bits = (byte >> (6 - 2 * pair)) & 3U;
            sums[byte] |= ((bits >> 1U) + (bits & 1U)) << (8 * pair);
        }
    return sums;
}

// The grey of 0 to 4 set bits in a square of four.
std::array<uchar, 5> greys(const QImage& bits)
{
    const int out = qGray(bits.color(0));
    const int on = qGray(bits.color(1));
    std::array<uchar, 5> tones{};
    for (int set = 0; set <= 4; ++set) {
        const int darkest = set == 0 ? out : set == 4 ? on : std::min(on, out);
        tones[static_cast<std::size_t>(set)] = static_cast<uchar>(darkened((out * (4 - set) + on * set) / 4, darkest));
    }
    return tones;
}

QSize half(const QSize& size)
{
    return {std::max(1, size.width() / 2), std::max(1, size.height() / 2)};
}

QImage halveBits(const QImage& bits)
{
    static const std::array<std::uint32_t, 256> SUMS = pairSums();
    const std::array<uchar, 5> tones = greys(bits);
    QImage grey(half(bits.size()), QImage::Format_Grayscale8);
    for (int y = 0; y < grey.height(); ++y) {
        const uchar* above = bits.constScanLine(2 * y);
        const uchar* below = bits.constScanLine(std::min(2 * y + 1, bits.height() - 1));
        uchar* target = grey.scanLine(y);
        for (int x = 0; x < grey.width(); ++x) {
            const int byte = x / 4;
            const std::uint32_t sum = SUMS[above[byte]] + SUMS[below[byte]];
            target[x] = tones[(sum >> (8 * (x % 4))) & 0xFFU];
        }
    }
    return grey;
}

// Pixels of one byte, or of four with a colour in each.
QImage halveBytes(const QImage& picture)
{
    const int channels = picture.depth() / 8;
    QImage result(half(picture.size()), picture.format());
    const int next = picture.width() > 1 ? channels : 0;
    for (int y = 0; y < result.height(); ++y) {
        const uchar* above = picture.constScanLine(2 * y);
        const uchar* below = picture.constScanLine(std::min(2 * y + 1, picture.height() - 1));
        uchar* target = result.scanLine(y);
        for (int i = 0; i < result.width() * channels; ++i) {
            const int k = 2 * (i / channels) * channels + i % channels;
            const std::array four{above[k], above[k + next], below[k], below[k + next]};
            const int medium = (four[0] + four[1] + four[2] + four[3]) / 4;
            target[i] = static_cast<uchar>(darkened(medium, *std::min_element(four.begin(), four.end())));
        }
    }
    return result;
}

QImage plainFormat(QImage picture)
{
    if (picture.depth() == 1)
        return std::move(picture).convertToFormat(QImage::Format_Mono);
    return std::move(picture).convertToFormat(picture.isGrayscale() ? QImage::Format_Grayscale8 : QImage::Format_RGB32);
}

// Fax machines scan with different resolutions across and down.
QSizeF square(const QImage& picture, bool rotated)
{
    double landscape = picture.dotsPerMeterX();
    double high = picture.dotsPerMeterY();
    if (rotated) // The picture was turned, its resolutions were not.
        std::swap(landscape, high);
    const bool usable =
        landscape > 0 && high > 0 && landscape / high > SMALLEST_RATIO && high / landscape > SMALLEST_RATIO;
    if (!usable)
        return picture.size();
    const double finest = std::max(landscape, high);
    return {picture.width() * finest / landscape, picture.height() * finest / high};
}

bool tooLarge(const QImageReader& reader)
{
    const QSize size = reader.size();
    const int bits = reader.imageFormat() == QImage::Format_Invalid
                         ? 32
                         : QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel();
    return qint64{size.width()} * size.height() / 8 * bits > MEMORY_LIMIT;
}

PicturePage load(const QString& file, int number)
{
    QImageReader::setAllocationLimit(0); // It counts four bytes for each dot of a scan; tooLarge knows better.
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    PicturePage page{number, std::max(reader.imageCount(), 1), {}, {}};
    if (number > 0 && !reader.jumpToImage(number))
        return page;
    if (tooLarge(reader))
        return page;
    const bool rotated = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    QImage picture = reader.read();
    if (picture.isNull())
        return page;
    page.sizes = square(picture, rotated);
    page.levels.push_back(plainFormat(std::move(picture)));
    while (std::max(page.levels.back().width(), page.levels.back().height()) > SMALLEST_LEVEL) {
        const QImage& last = page.levels.back();
        QImage less = last.depth() == 1 ? halveBits(last) : halveBytes(last);
        if (less.isNull())
            return {number, page.count, {}, {}};
        page.levels.push_back(std::move(less));
    }
    return page;
}

} // namespace

PicturePage loadPicturePage(const QString& file, int number)
{
    try {
        return load(file, number);
    } catch (const std::bad_alloc&) {
        return {number, 1, {}, {}};
    }
}

} // namespace quelvarn
