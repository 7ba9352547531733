#include "ui/workplace.h"

#include "session/session_state.h"
#include "ui/document_page/form_se_doku.h"
#include "ui/filter_page/form_se_filtern.h"
#include "ui/main_window/mdi_form1.h"
#include "ui/start_page/appearance_frame.h"
#include "ui/start_page/form_db.h"

#include <QApplication>

namespace quelvarn {

// Passes on to the document page what the frame and the start page do.
class Arbeitsplatz::Dokumentteilnehmer final : public Rahmenteilnehmer
{
public:
    Dokumentteilnehmer(SessionState& session, DocumentPage& seite) : session_(session), seite_(seite) {}

    void seiteGezeigt(Seite seite) override
    {
        if (seite != Seite::Dokumente)
            return;
        session_.FormSEDokuGeladen = true;
        seite_.StartTabelleZeigen();
    }
    void datenbankWechselt() override { seite_.datenbankGewechselt(); }
    void baumschalterGeaendert() override { seite_.baumschalterGeaendert(); }
    void entladen() override
    {
        if (session_.FormSEDokuGeladen)
            seite_.schliessen();
        session_.FormSEDokuGeladen = false;
    }

private:
    SessionState& session_;
    DocumentPage& seite_;
};

Arbeitsplatz::Arbeitsplatz(SessionState& session, Ports& ports, Darstellung& darstellung,
                           std::function<void()> programmEnde)
    : session_(session), darstellung_(darstellung), programmEnde_(std::move(programmEnde)),
      waechter_(ports.meldungen, [this] { programmEnde_(); }), rahmen_(session, ports, {}),
      startseite_(session, ports, rahmen_), dokumentseite_(session, ports),
      dokumentteilnehmer_(std::make_unique<Dokumentteilnehmer>(session, dokumentseite_)),
      fenster_(std::make_unique<MDIForm1>(rahmen_, session, darstellung))
{
    auto* aussehen = new Darstellungsrahmen(darstellung);
    aussehen->geaendert = [this] {
        darstellung_.wendeAn(*qApp);
        fenster_->stelleGroesseEin();
        fenster_->show();
    };
    formDB_ = new FormDB(startseite_, aussehen);
    formSEDoku_ = new FormSEDoku(dokumentseite_);
    fenster_->setzeSeiten(*formDB_, *new FormSEFiltern, *formSEDoku_);
    verbinde();
}

Arbeitsplatz::~Arbeitsplatz() = default;

void Arbeitsplatz::verbinde()
{
    rahmen_.meldeAn(*dokumentteilnehmer_);
    rahmen_.geaendert = [this] { fenster_->zeigen(); };
    rahmen_.beendet = [this] { programmEnde_(); };
    startseite_.geaendert = [this] { formDB_->zeigen(); };
    dokumentseite_.geaendert = [this] {
        formSEDoku_->zeigen();
        fenster_->zeigeAenderungen(dokumentseite_.aenderungspanele());
    };
}

bool Arbeitsplatz::starte()
{
    bool weiter = false;
    waechter_.fuehreAus([&] {
        fenster_->zeigen();
        formDB_->zeigen();
        formSEDoku_->zeigen();
        fenster_->show();
        weiter = rahmen_.laden();
    });
    return weiter;
}

} // namespace quelvarn
