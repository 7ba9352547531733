#pragma once

#include <QWidget>

#include <string>
#include <vector>

class QComboBox;
class QListWidget;
class QToolButton;
class QTreeWidget;

namespace quelvarn {

class StartPage;

// The way to a database file: drive list, folder list, file list.
class FileChooser : public QWidget
{
    Q_OBJECT

public:
    explicit FileChooser(StartPage& model);

    void refresh();

private:
    void connectControls();
    void showDrives();
    void showFolder();
    void showFiles();

    StartPage& model_;
    QComboBox* DriveDB_;
    QToolButton* TbUpDB_;
    QTreeWidget* DirDB_;
    QListWidget* FileDB_;
    // What stands in the lists now; they are filled anew only when it changed.
    std::vector<std::string> drives_;
    std::string folder_;
    std::vector<std::string> subfolder_;
    std::vector<std::string> files_;
};

} // namespace quelvarn
