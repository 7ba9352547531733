#pragma once

#include <QWidget>

namespace quelvarn {

class FileChooser;
class Settings;
class ShortLabel;
class StartPage;

// The start page: choosing the database, and the settings of the user.
class FormDB : public QWidget
{
    Q_OBJECT

public:
    // `appearance` is the frame with this computer's appearance; the page takes it over.
    FormDB(StartPage& model, QWidget* appearance);

    void refresh();

private:
    QWidget* newHeadingRow();
    QWidget* newBar();
    QWidget* newStatusRow();

    StartPage& model_;
    ShortLabel* LabelDB_;
    FileChooser* chooser_;
    Settings* settings_;
    ShortLabel* fileName_;
    ShortLabel* pathName_;
};

} // namespace quelvarn
