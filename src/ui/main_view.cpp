#include "ui/main_view.h"

#include "session/session_state.h"
#include "ui/busy_pointer.h"
#include "ui/document_page/document_view.h"
#include "ui/filter_page/filter_view.h"
#include "ui/main_window/main_window_view.h"
#include "ui/start_page/appearance_frame.h"
#include "ui/start_page/start_view.h"

#include <QApplication>
#include <QPrintDialog>

namespace quelvarn {

Arbeitsplatz::Arbeitsplatz(SessionState& session, Ports& ports, Darstellung& darstellung,
                           std::function<void()> programmEnde)
    : darstellung_(darstellung), programmEnde_(std::move(programmEnde)),
      waechter_(ports.meldungen, [this] { programmEnde_(); }), viewer_(ports.dateien),
      program_(session, ports, viewer_), fenster_(std::make_unique<MDIForm1>(program_.frame, session, darstellung))
{
    auto* aussehen = new Darstellungsrahmen(darstellung);
    aussehen->geaendert = [this] {
        darstellung_.wendeAn(*qApp);
        fenster_->stelleGroesseEin();
        fenster_->show();
    };
    formDB_ = new FormDB(program_.startPage, aussehen);
    formSEDoku_ = new FormSEDoku(program_, viewer_);
    formSEFiltern_ = new FormSEFiltern(program_.filterPage, viewer_.platz(Ansicht::Filtervorlage));
    fenster_->setzeSeiten(*formDB_, *formSEFiltern_, *formSEDoku_);
    program_.operations.show = [this](const Parts& parts) { refresh(parts); };
    program_.frame.beendet = [this] { programmEnde_(); };
    program_.topBar.druckerdialog = [this] { QPrintDialog(fenster_.get()).exec(); };
}

Arbeitsplatz::~Arbeitsplatz() = default;

void Arbeitsplatz::refresh(const Parts& parts)
{
    const auto of = [&](Part part) { return contains(parts, part); };
    if (of(Part::Frame))
        fenster_->zeigen();
    if (of(Part::StartPage))
        formDB_->zeigen();
    if (of(Part::FilterPage))
        formSEFiltern_->zeigen();
    if (of(Part::Document)) {
        formSEDoku_->zeigen();
        fenster_->zeigeAenderungen(program_.tables.indicators());
        return; // With its bars and tables.
    }
    if (of(Part::Rows))
        formSEDoku_->refreshRows();
    if (of(Part::LeftBar))
        formSEDoku_->zeigeLinks();
    if (of(Part::TopBar))
        formSEDoku_->zeigeOben();
}

bool Arbeitsplatz::starte()
{
    bool weiter = false;
    waechter_.fuehreAus([&] {
        const Sanduhr warten;
        fenster_->zeigen();
        formDB_->zeigen();
        formSEDoku_->zeigen();
        fenster_->show();
        weiter = program_.frame.laden();
    });
    return weiter;
}

void Arbeitsplatz::beende()
{
    waechter_.fuehreAus([this] { program_.frame.entladen(); });
}

} // namespace quelvarn
