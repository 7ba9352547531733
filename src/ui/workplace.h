#pragma once

#include "filter/filter_page.h"
#include "filter/filter_state.h"
#include "platform/ports.h"
#include "register/document_page.h"
#include "register/left_bar.h"
#include "register/top_bar.h"
#include "session/database_watch.h"
#include "session/main_window.h"
#include "session/operations.h"
#include "session/start_page.h"
#include "ui/adapters/viewer_qt.h"
#include "ui/guard.h"
#include "ui/theme/appearance.h"
#include "use/shown_files.h"
#include "use/use_registry.h"

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
    void verbinde();
    void refresh(const Parts& parts);
    void verbindeObereLeiste();
    void verbindeFilterseite();
    void openDatabaseAgain();

    Darstellung& darstellung_;
    std::function<void()> programmEnde_;
    Waechter waechter_;
    Operations operations_;
    MainWindow rahmen_;
    StartPage startseite_;
    DatabaseWatch watch_;
    FilterState filter_;
    KeinNutzungsregister nutzung_;
    QtViewer viewer_;
    GezeigteDateien gezeigt_;
    DocumentTables tables_;
    DocumentPage dokumentseite_;
    LinkeLeiste linkeLeiste_;
    ObereLeiste obereLeiste_;
    FilterPage filterseite_;
    std::unique_ptr<MDIForm1> fenster_;
    FormDB* formDB_ = nullptr;
    FormSEDoku* formSEDoku_ = nullptr;
    FormSEFiltern* formSEFiltern_ = nullptr;
};

} // namespace quelvarn
