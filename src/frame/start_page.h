#pragma once

#include "frame/file_chooser.h"
#include "frame/main_window.h"
#include "session/operations.h"
#include "session/session_state.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>

namespace quelvarn {

// The options of OpOfflinePlot, by its index.
inline constexpr std::array<std::string_view, 2> OFFLINE_TOOLS{"Druvik", "Talvik"};

// State and operations of the start page FormDB: choosing the database, and the settings of the user.
class StartPage : public SessionListener
{
public:
    // Follows the frame by itself.
    StartPage(SessionState& session, Operations& operations, MainWindow& frame);

    // --- operations, one for each thing a person can do ---
    void driveChosen(std::string_view entry);   // DriveDB
    void folderChosen(std::string_view folder); // DirDB, a whole path
    void upwards();                             // TbUpDB
    void fileChosen(std::string_view name);     // FileDB
    void open();
    // The open database, from the file that stands under its path now.
    void openAgain();
    void leave();
    void setActiveSE(bool on);             // TggBtActiveSE
    void setInfoPrio1(int index, bool on); // ChInfoPrio1
    void setInfoPrio2(int index, bool on); // ChInfoPrio2
    void offlineToolChosen(int index);     // OpOfflinePlot
    void setLocalOrders(bool on);          // ChLocalOrder

    // --- state, for the projection ---
    const FileSelection& selection() const { return selection_; }
    const std::string& LabelDB() const { return labelDB_; }
    const std::string& fileNamePanel() const { return fileNamePanel_; } // StatusBarDB
    const std::string& pathNamePanel() const { return pathNamePanel_; }
    const std::string& LblSolidEdgeVersion() const { return lblVersion_; }
    const std::string& LblSolidEdgePfad() const { return lblPfad_; }
    bool cadEventsVisible() const { return cadEventsVisible_; } // FrmActiveSE
    bool cadEventsReady() const { return cadEventsReady_; }
    bool activeSE() const { return session_.pages.ActiveQuelvarn; }
    std::string_view LblActiveSE() const;
    bool infoPrio1(int index) const;
    bool infoPrio2(int index) const;
    int offlineTool() const; // Index in OFFLINE_TOOLS
    bool localOrders() const { return session_.orders.OrdersLocal; }

    // --- what the frame tells ---
    void pageShown(Page page) override;
    void unload() override;

private:
    void laden();
    void showDatabaseInChooser();
    void fillStatusBar(std::string_view documentPath);
    void showSolidEdge();
    bool confirmsChange(std::string_view newPath);
    void databaseLost();
    void adoptDatabase();
    void setOption(std::size_t row, bool on);

    SessionState& session_;
    Operations& operations_;
    Ports& ports_;
    MainWindow& frame_;
    FileSelection selection_;
    std::string chosenPath_; // What LabelDB names and "Öffnen" opens.
    std::string labelDB_;
    std::string fileNamePanel_, pathNamePanel_;
    std::string lblVersion_, lblPfad_;
    bool cadEventsVisible_ = true;
    bool cadEventsReady_ = true;
};

} // namespace quelvarn
