#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>

#include <vector>

namespace quelvarn {

// One page of a picture file, ready to be drawn at any zoom.
struct PicturePage
{
    int number = 0; // From 0
    int count = 0;  // Pages of the file
    // The picture itself, then each in half the size of the one before, in grey or colour. Empty: it could not be read.
    std::vector<QImage> levels;
    QSizeF sizes; // The picture's size when its pixels are square.
};

// Takes long for a large scan: for a worker thread. Whatever is wrong with the file, the answer is an empty page.
PicturePage loadPicturePage(const QString& file, int number);

} // namespace quelvarn
