#pragma once

#include "session/operations.h"
#include "session/session_listener.h"
#include "session/session_state.h"
#include "session/solid_edge_info.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// The buttons of ToolbarMidiFrm, in their order.
enum class Tool { Edit, InsertInAssembly, PlaceInDrawing, SmartViewer, Extras, Forward, Messages, Quit };
inline constexpr int TOOL_COUNT = 8;

struct ToolButton
{
    std::string_view caption;
    std::string_view tooltip;
    bool visible = true;
};

struct TimerSetting
{
    bool on = false;
    int interval = 0; // milliseconds
};

// "Innerhalb 30,0 Sek. benachrichtigen Ja/Nein.", or that nobody is told.
std::string notificationText(const UseSettings& use);

// State and operations of the frame MDIForm1: which page is in front, tool bar, caption, status bar, timers.
class MainWindow
{
public:
    MainWindow(SessionState& session, Operations& operations, SolidEdgeInfo solidEdge);
    void addListener(SessionListener& listener) { listener_.push_back(&listener); }
    // What a button does when the frame has nothing against it.
    void setAction(Tool button, std::function<void()> action);

    // --- operations, one for each thing a person can do ---
    // Runs once the window is on screen. False when the program ends.
    bool laden();
    void toPage(Page target);
    void toolChosen(Tool button);
    void edit(); // A document was double-clicked: what "Bearbeiten" does, where there is such a button.
    // The time of TimerDBUpdate has come.
    void tickDBUpdate();
    // The pages write their rows, the connection goes, `ended` is called. Only the first call counts.
    void unload();

    // --- mechanisms that the start page uses ---
    void showPage(Page target);
    void setTitle(std::string_view databasePath);
    void RefreshStatusBar();
    void configureTools();
    void configureTimers();
    void notify(const std::function<void(SessionListener&)>& event);

    // --- state, for the projection ---
    Page page() const { return page_; }
    const std::string& title() const { return title_; }
    const ToolButton& button(Tool button) const { return buttons_[static_cast<std::size_t>(button)]; }
    bool hasAction(Tool button) const;
    // The texts of StatusBarUpdate from the left. Indicator panels are empty here (see DocumentType::indicatorPanel).
    const std::vector<std::string>& statusPanel() const { return statusPanel_; }
    bool showsChanges() const { return statusPanel_.size() > 2; }
    TimerSetting TimerDBUpdate() const { return timerDBUpdate_; }
    TimerSetting TimerCheckInOut() const { return timerCheckInOut_; }
    TimerSetting TimerWorkflow() const { return timerWorkflow_; }
    const SolidEdgeInfo& solidEdge() const { return solidEdge_; }

    std::function<void()> watchDatabase; // Looks after the file of the open database, at each tick.
    std::function<void()> ended;         // The window goes, the program ends.

private:
    void openFirstPage();
    void reachReplacedFile();
    bool forwardOn(std::string_view title, std::string_view firstRow);

    SessionState& session_;
    Operations& operations_;
    Ports& ports_;
    SolidEdgeInfo solidEdge_;
    std::vector<SessionListener*> listener_;
    std::array<std::function<void()>, TOOL_COUNT> actions_;
    std::array<ToolButton, TOOL_COUNT> buttons_;
    Page page_ = Page::None;
    std::string title_;
    std::vector<std::string> statusPanel_;
    TimerSetting timerDBUpdate_, timerCheckInOut_, timerWorkflow_;
    bool unload_ = false;
};

} // namespace quelvarn
