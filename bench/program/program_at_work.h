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

class Arbeitsplatz;

} // namespace quelvarn

namespace quelvarn::bench {

// The whole program with its windows on a register, but for boxes: one that comes up ends the measuring.
class LaufendesProgramm
{
public:
    // The register becomes W:\<name> of a folder of drives of its own.
    explicit LaufendesProgramm(const std::filesystem::path& datenbank);
    ~LaufendesProgramm();

    // A new window, on its start page. The database is connected.
    void zeigeStartseite();
    // What a click on the button of this name does.
    void klicke(const char* knopf);
    // Keys go to the widget that has the focus.
    void druecke(int taste, Qt::KeyboardModifiers zusatz = Qt::NoModifier);
    QAbstractItemView& gitter(int tab);
    SessionState& session() { return session_; }
    // Puts an empty file where a document says that its own is.
    void legeDateiAn(const std::string& pfad);

private:
    // No one is there to answer. The first start on a register tells what it adds to it; later no box may come.
    class KeineMeldungen : public Meldungen
    {
    public:
        Antwort zeige(const Meldung& meldung) override;
        bool erlaubt = true;
    };
    class KeineZwischenablage : public Zwischenablage
    {
    public:
        std::string text() const override { return {}; }
        void setzeText(std::string_view) override {}
    };

    QWidget& widgetOf(const QString& name);

    QTemporaryDir ordner_;
    KeineMeldungen meldungen_;
    KeineZwischenablage zwischenablage_;
    StilleAnzeige fortschritt_;
    std::unique_ptr<SystemPorts> system_;
    Ports ports_;
    Darstellung darstellung_;
    SessionState session_;
    std::unique_ptr<Arbeitsplatz> arbeitsplatz_;
};

} // namespace quelvarn::bench
