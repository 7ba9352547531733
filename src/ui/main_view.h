#pragma once

#include "platform/ports.h"
#include "program/program.h"
#include "ui/adapters/viewer_qt.h"
#include "ui/guard.h"
#include "ui/theme/appearance.h"

#include <functional>
#include <memory>

namespace quelvarn {

class FormDB;
class FormSEDoku;
class FormSEFiltern;
class MDIForm1;
struct SessionState;

// The program on the screen: the models of its pages and the windows that show them.
class Workplace
{
public:
    // `programEnd` ends the program: the window was closed, or a person chose so in an error report.
    Workplace(SessionState& session, Ports& ports, Appearance& appearance, std::function<void()> programEnd);
    ~Workplace();

    // Puts the window on the screen and runs its load. False when the program ends.
    bool start();
    // As if a person had closed the window.
    void end();
    MDIForm1& window() { return *window_; }

private:
    void refresh(const Parts& parts);

    Appearance& appearance_;
    std::function<void()> programEnd_;
    SlotGuard slotGuard_;
    QtViewer viewer_;
    Program program_;
    std::unique_ptr<MDIForm1> window_;
    FormDB* formDB_ = nullptr;
    FormSEDoku* FormSEDoku_ = nullptr;
    FormSEFiltern* FormSEFiltern_ = nullptr;
};

} // namespace quelvarn
