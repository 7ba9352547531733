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

Workplace::Workplace(SessionState& session, Ports& ports, Appearance& appearance, std::function<void()> programEnd)
    : appearance_(appearance), programEnd_(std::move(programEnd)), slotGuard_(ports.boxes, [this] { programEnd_(); }),
      viewer_(ports.files), program_(session, ports, viewer_),
      window_(std::make_unique<MDIForm1>(program_.frame, session.user, appearance))
{
    auto* appearanceFrame = new AppearanceFrame(appearance);
    appearanceFrame->changed = [this] {
        appearance_.apply(*qApp);
        window_->configureSize();
        window_->show();
    };
    formDB_ = new FormDB(program_.startPage, appearanceFrame);
    FormSEDoku_ = new FormSEDoku(program_, viewer_);
    FormSEFiltern_ = new FormSEFiltern(program_.filterPage, viewer_.place(ViewerPlace::FilterTemplate));
    window_->setPages(*formDB_, *FormSEFiltern_, *FormSEDoku_);
    program_.operations.show = [this](const Parts& parts) { refresh(parts); };
    program_.frame.ended = [this] { programEnd_(); };
    program_.topBar.printerDialog = [this] { QPrintDialog(window_.get()).exec(); };
}

Workplace::~Workplace() = default;

void Workplace::refresh(const Parts& parts)
{
    const auto of = [&](Part part) { return contains(parts, part); };
    if (of(Part::Frame))
        window_->refresh();
    if (of(Part::StartPage))
        formDB_->refresh();
    if (of(Part::FilterPage))
        FormSEFiltern_->refresh();
    if (of(Part::Document)) {
        FormSEDoku_->refresh();
        window_->showChanges(program_.tables.indicators());
        return; // With its bars and tables.
    }
    if (of(Part::Rows))
        FormSEDoku_->refreshRows();
    if (of(Part::LeftBar))
        FormSEDoku_->showLeft();
    if (of(Part::TopBar))
        FormSEDoku_->showAbove();
}

bool Workplace::start()
{
    bool further = false;
    slotGuard_.execute([&] {
        const BusyCursor wait;
        window_->refresh();
        formDB_->refresh();
        FormSEDoku_->refresh();
        window_->show();
        further = program_.frame.laden();
    });
    return further;
}

void Workplace::end()
{
    slotGuard_.execute([this] { program_.frame.unload(); });
}

} // namespace quelvarn
