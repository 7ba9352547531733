#pragma once

#include <QWidget>

namespace quelvarn {

class DetailPages;
class LongText;
class TiffView;

// An additional document shown on its page: a picture (PicZusDoku), or a text or hint (OLEAppZusDoku).
class FilePictureView : public QWidget
{
    Q_OBJECT

public:
    explicit FilePictureView(DetailPages& details);

    void refresh();

private:
    DetailPages& details_;
    TiffView* PicZusDoku_;
    LongText* OLEAppZusDoku_;
};

// The page of a drawing's TIFF.
class TiffPage : public QWidget
{
    Q_OBJECT

public:
    explicit TiffPage(DetailPages& details);

    void refresh();

private:
    DetailPages& details_;
    TiffView* picture_;
};

} // namespace quelvarn
