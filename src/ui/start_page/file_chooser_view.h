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
class Dateiwaehler : public QWidget
{
    Q_OBJECT

public:
    explicit Dateiwaehler(StartPage& modell);

    void zeigen();

private:
    void verbinde();
    void zeigeLaufwerke();
    void zeigeOrdner();
    void zeigeDateien();

    StartPage& modell_;
    QComboBox* DriveDB_;
    QToolButton* TbUpDB_;
    QTreeWidget* DirDB_;
    QListWidget* FileDB_;
    // What stands in the lists now; they are filled anew only when it changed.
    std::vector<std::string> laufwerke_;
    std::string ordner_;
    std::vector<std::string> unterordner_;
    std::vector<std::string> dateien_;
};

} // namespace quelvarn
