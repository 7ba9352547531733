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
class Arbeitsplatz
{
public:
    // `programmEnde` ends the program: the window was closed, or a person chose so in an error report.
    Arbeitsplatz(SessionState& session, Ports& ports, Darstellung& darstellung, std::function<void()> programmEnde);
    ~Arbeitsplatz();

    // Puts the window on the screen and runs its load. False when the program ends.
    bool starte();
    // As if a person had closed the window.
    void beende();
    MDIForm1& fenster() { return *fenster_; }

private:
    void refresh(const Parts& parts);

    Darstellung& darstellung_;
    std::function<void()> programmEnde_;
    Waechter waechter_;
    QtViewer viewer_;
    Program program_;
    std::unique_ptr<MDIForm1> fenster_;
    FormDB* formDB_ = nullptr;
    FormSEDoku* formSEDoku_ = nullptr;
    FormSEFiltern* formSEFiltern_ = nullptr;
};

} // namespace quelvarn
