#pragma once

#include <QWidget>

namespace quelvarn {

class Detailseiten;
class LongText;
class TiffAnsicht;

// An additional document shown on its page: a picture (PicZusDoku), or a text or hint (OLEAppZusDoku).
class Dateibildansicht : public QWidget
{
    Q_OBJECT

public:
    explicit Dateibildansicht(Detailseiten& details);

    void zeigen();

private:
    Detailseiten& details_;
    TiffAnsicht* PicZusDoku_;
    LongText* OLEAppZusDoku_;
};

// The page of a drawing's TIFF.
class Tiffseite : public QWidget
{
    Q_OBJECT

public:
    explicit Tiffseite(Detailseiten& details);

    void zeigen();

private:
    Detailseiten& details_;
    TiffAnsicht* bild_;
};

} // namespace quelvarn
