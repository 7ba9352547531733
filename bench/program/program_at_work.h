#pragma once

#include "platform/boxes.h"
#include "platform/clipboard.h"
#include "platform/ports.h"
#include "platform/progress.h"
#include "platform/system_ports.h"
#include "session/session_state.h"
#include "ui/theme/appearance.h"

#include <QString>
#include <QTemporaryDir>

#include <filesystem>
#include <memory>

class QAbstractItemView;
class QWidget;

namespace quelvarn {

class Workplace;

} // namespace quelvarn

namespace quelvarn::bench {

// The whole program with its windows on a register, but for boxes: one that comes up ends the measuring.
class RunningProgram
{
public:
    // The register becomes W:\<name> of a folder of drives of its own.
    explicit RunningProgram(const std::filesystem::path& database);
    ~RunningProgram();

    // A new window, on its start page. The database is connected.
    void showStartPage();
    // What a click on the button of this name does.
    void click(const char* button);
    // Keys go to the widget that has the focus.
    void press(int key, Qt::KeyboardModifiers addition = Qt::NoModifier);
    QAbstractItemView& grid(int tab);
    SessionState& session() { return session_; }
    // Puts an empty file where a document says that its own is.
    void createFile(const std::string& path);

private:
    // No one is there to answer. The first start on a register tells what it adds to it; later no box may come.
    class NoBoxes : public Boxes
    {
    public:
        Answer show(const Box& box) override;
        bool allowed = true;
    };
    class NoClipboard : public Clipboard
    {
    public:
        std::string text() const override { return {}; }
        void setText(std::string_view) override {}
    };

    QWidget& widgetOf(const QString& name);

    QTemporaryDir folder_;
    NoBoxes boxes_;
    NoClipboard clipboard_;
    SilentDisplay progress_;
    std::unique_ptr<SystemPorts> system_;
    Ports ports_;
    Appearance appearance_;
    SessionState session_;
    std::unique_ptr<Workplace> workplace_;
};

} // namespace quelvarn::bench
