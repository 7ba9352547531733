#pragma once

#include "database/connection.h"
#include "scenario_runner/expected_boxes.h"
#include "scenario_runner/foretold_waits.h"
#include "scenario_runner/real_program.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

class QWidget;

namespace quelvarn {
class Files;
}

namespace quelvarn::scenario {

// What a scenario plays in: drives in a temporary folder, a clock, boxes, and the program when it runs.
class World
{
public:
    explicit World(std::string pictureFolder);
    ~World();

    ExpectedBoxes boxes;
    ForetoldWaits waits;

    // --- setup ---
    void setUser(const std::string& name);
    // The one who runs this program.
    void setSystemUser();
    void setComputer(const std::string& name);
    void setClock(const std::string& iso);
    void advance(int seconds);
    void addDrive(const std::string& letter);
    void addShare(const std::string& letter, const std::string& share);
    void setPrinter(const std::string& name, int paper, int copies, int orientation);
    void removePrinters();
    void addForeignWindow(const std::string& caption);
    void clearForeignWindows();
    void setClipboard(const std::string& text);
    void look(bool dark);
    // The register that queries and statements go to from now on.
    void useRegister(const std::string& windowsPath) { register_ = windowsPath; }

    // --- the program ---
    void start();
    void close();
    bool running() const;
    QWidget& mainWindow() const;
    // Lets queued events happen.
    void settle() const;

    // --- what is around the program ---
    void lockRegister(const std::string& mode);
    void unlockRegister();
    // Where something lies while it is away.
    std::filesystem::path awayPlace(const std::string& windowsPath) const;
    void startRealProgram();
    RealProgram& realProgram() const;

    // --- what can be looked at ---
    Files& files() const;
    std::filesystem::path realPath(const std::string& windowsPath) const;
    std::string fileText(const std::string& windowsPath) const;
    std::string clipboardText() const;
    std::string lastOpened() const;
    Connection connect() const;
    const std::string& pictureFolder() const { return pictureFolder_; }

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
    std::string pictureFolder_;
    std::string register_;
};

} // namespace quelvarn::scenario
