#pragma once

#include "session/operations.h"

#include <functional>
#include <string>
#include <string_view>

namespace quelvarn {

class DocumentTables;
class DocumentJump;
class Favourites;
class TableTabs;
class ViewerArea;
struct CurrentDocument;
struct UseSettings;

// What the buttons over the tables do with the document shown (ToolbarSEDokTop).
class TopBar
{
public:
    TopBar(const UseSettings& use, const CurrentDocument& AktDoku, Operations& operations, DocumentTables& tables,
           TableTabs& tabs, ViewerArea& viewer, DocumentJump& jump, Favourites& favourites)
        : use_(use), AktDoku_(AktDoku), operations_(operations), ports_(operations.ports()), tables_(tables),
          tabs_(tabs), viewer_(viewer), jump_(jump), favourites_(favourites)
    {}

    // A button was clicked, told apart by its key; a key without work does nothing. `on` counts for toggles.
    void click(std::string_view key, bool on = true);

    // --- state ---
    bool usable(std::string_view key) const;
    bool pressed(std::string_view key) const;

    std::function<void()> printerDialog; // Of the system; nothing here follows from it.

private:
    struct Command;
    static const Command COMMANDS[];

    void rebuild(bool on);
    void openInViewer(bool on);
    void pathToClipboard(bool on);
    void pathFromClipboard(bool on);
    void toFavourites(bool on);
    void showFavourites(bool on);
    void inUse(bool on);
    void printers(bool on);
    void switchTo(const std::string& documentPath);

    const UseSettings& use_;
    const CurrentDocument& AktDoku_;
    Operations& operations_;
    Ports& ports_;
    DocumentTables& tables_;
    TableTabs& tabs_;
    ViewerArea& viewer_;
    DocumentJump& jump_;
    Favourites& favourites_;
};

} // namespace quelvarn
