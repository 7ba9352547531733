#pragma once

#include <QWidget>

#include <array>

class QCheckBox;
class QLabel;

namespace quelvarn {

class InfoPanel;

// The file properties page (FrmInfoDoku 10). Its labels are the array LblDat.
class FileView : public QWidget
{
    Q_OBJECT

public:
    explicit FileView(InfoPanel& model);

    void refresh();

private:
    QCheckBox* newBox(const char* name, const QString& text, void (InfoPanel::*set)(bool));

    InfoPanel& model_;
    std::array<QLabel*, 6> values_{};
    QCheckBox* ChDatReadOnly_;
    QCheckBox* ChDatArchiv_;
};

} // namespace quelvarn
