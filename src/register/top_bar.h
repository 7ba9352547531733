#pragma once

#include "platform/ports.h"
#include "register/favourites.h"

#include <functional>
#include <string>
#include <string_view>

namespace quelvarn {

class DocumentTables;
class Dokumentsprung;
class TableTabs;
class ViewerArea;
struct SessionState;

// What the buttons over the tables do with the document shown (ToolbarSEDokTop).
class ObereLeiste
{
public:
    ObereLeiste(SessionState& session, Operations& operations, DocumentTables& tables, TableTabs& tabs,
                ViewerArea& viewer, Dokumentsprung& jump)
        : session_(session), operations_(operations), ports_(operations.ports()), tables_(tables), tabs_(tabs),
          viewer_(viewer), jump_(jump), favoriten_(session, operations, tables, tabs, jump)
    {}

    // A button was clicked, told apart by its key; a key without work does nothing. `an` counts for toggles.
    void klick(std::string_view schluessel, bool an = true);

    Favoriten& favoriten() { return favoriten_; }

    // --- state ---
    bool bedienbar(std::string_view schluessel) const;
    bool gedrueckt(std::string_view schluessel) const;

    std::function<void()> druckerdialog; // Of the system; nothing here follows from it.

private:
    struct Befehl;
    static const Befehl BEFEHLE[];

    void neuaufbau(bool an);
    void anschauen(bool an);
    void pfadInZwSp(bool an);
    void pfadAusZwSp(bool an);
    void zuFavoriten(bool an);
    void zeigeFavoriten(bool an);
    void inBenutzung(bool an);
    void drucker(bool an);
    void wechsleZu(const std::string& pfad);

    SessionState& session_;
    Operations& operations_;
    Ports& ports_;
    DocumentTables& tables_;
    TableTabs& tabs_;
    ViewerArea& viewer_;
    Dokumentsprung& jump_;
    Favoriten favoriten_;
};

} // namespace quelvarn
