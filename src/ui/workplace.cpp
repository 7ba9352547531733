#include "ui/workplace.h"

#include "filter/execution.h"
#include "session/session_state.h"
#include "ui/busy_pointer.h"
#include "ui/document_page/form_se_doku.h"
#include "ui/filter_page/form_se_filtern.h"
#include "ui/main_window/mdi_form1.h"
#include "ui/start_page/appearance_frame.h"
#include "ui/start_page/form_db.h"

#include <QApplication>
#include <QPrintDialog>

namespace quelvarn {

Arbeitsplatz::Arbeitsplatz(SessionState& session, Ports& ports, Darstellung& darstellung,
                           std::function<void()> programmEnde)
    : darstellung_(darstellung), programmEnde_(std::move(programmEnde)),
      waechter_(ports.meldungen, [this] { programmEnde_(); }), operations_(ports), rahmen_(session, operations_, {}),
      startseite_(session, operations_, rahmen_), watch_(session, operations_.ports(), [this] { openDatabaseAgain(); }),
      viewer_(ports.dateien), gezeigt_(viewer_, nutzung_), tables_(session, operations_),
      dokumentseite_(session, operations_, tables_, filter_, gezeigt_),
      linkeLeiste_(session, operations_, filter_, dokumentseite_), obereLeiste_(session, operations_, dokumentseite_),
      filterseite_(session, operations_, filter_, tables_),
      fenster_(std::make_unique<MDIForm1>(rahmen_, session, darstellung))
{
    auto* aussehen = new Darstellungsrahmen(darstellung);
    aussehen->geaendert = [this] {
        darstellung_.wendeAn(*qApp);
        fenster_->stelleGroesseEin();
        fenster_->show();
    };
    formDB_ = new FormDB(startseite_, aussehen);
    formSEDoku_ = new FormSEDoku(dokumentseite_, linkeLeiste_, obereLeiste_, session, viewer_);
    formSEFiltern_ = new FormSEFiltern(filterseite_, viewer_.platz(Ansicht::Filtervorlage));
    fenster_->setzeSeiten(*formDB_, *formSEFiltern_, *formSEDoku_);
    verbinde();
    verbindeObereLeiste();
    verbindeFilterseite();
}

Arbeitsplatz::~Arbeitsplatz() = default;

void Arbeitsplatz::verbinde()
{
    rahmen_.meldeAn(dokumentseite_);
    operations_.show = [this](const Parts& parts) { refresh(parts); };
    rahmen_.beendet = [this] { programmEnde_(); };
    dokumentseite_.bearbeiten = [this] {
        if (rahmen_.knopf(Werkzeug::Bearbeiten).sichtbar && rahmen_.hatAktion(Werkzeug::Bearbeiten))
            rahmen_.werkzeugGewaehlt(Werkzeug::Bearbeiten);
    };
    rahmen_.watchDatabase = [this] { watch_.tick(); };
    dokumentseite_.databaseStillOpen = [this] { return watch_.stillOpen(); };
    dokumentseite_.tabelleGewechselt = [this] {
        linkeLeiste_.tabelleGewechselt();
        obereLeiste_.favoriten().tabelleGewechselt();
    };
}

void Arbeitsplatz::verbindeObereLeiste()
{
    Favoriten& favoriten = obereLeiste_.favoriten();
    rahmen_.meldeAn(favoriten);
    dokumentseite_.verwendung().favoritHinzufuegen = [&favoriten](const std::string& DokuBez, const std::string& RevBez,
                                                                  std::string_view typ, const std::string& filename) {
        favoriten.FavoritHinzufuegen(DokuBez, RevBez, typ, filename);
    };
    obereLeiste_.druckerdialog = [this] { QPrintDialog(fenster_.get()).exec(); };
}

void Arbeitsplatz::verbindeFilterseite()
{
    rahmen_.meldeAn(filterseite_); // Behind the document page, whose table it opens for.
    linkeLeiste_.nutzeGespeicherten = [this](std::string_view Filtername) {
        const Sanduhr warten;
        filterseite_.nutzeGespeicherten(Filtername);
    };
    filterseite_.zurDokumentseite = [this] { rahmen_.zuSeite(Seite::Dokumente); };
    filterseite_.viewer = [this](const std::string& filename) {
        if (!filename.empty())
            return gezeigt_.zeige(Ansicht::Filtervorlage, filename);
        gezeigt_.leere(Ansicht::Filtervorlage);
        return true;
    };
}

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
        fenster_->zeigeAenderungen(tables_.indicators());
        return; // With its bars and tables.
    }
    if (of(Part::Rows))
        formSEDoku_->refreshRows();
    if (of(Part::LeftBar))
        formSEDoku_->zeigeLinks();
    if (of(Part::TopBar))
        formSEDoku_->zeigeOben();
}

// The table in front stays in front.
void Arbeitsplatz::openDatabaseAgain()
{
    const int tab = dokumentseite_.tab();
    startseite_.openAgain();
    if (rahmen_.seite() == Seite::Dokumente && dokumentseite_.tab() != tab)
        dokumentseite_.tabGewaehlt(tab);
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
        weiter = rahmen_.laden();
    });
    return weiter;
}

void Arbeitsplatz::beende()
{
    waechter_.fuehreAus([this] { rahmen_.entladen(); });
}

} // namespace quelvarn
