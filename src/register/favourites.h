#pragma once

#include "database/document_types.h"
#include "database/recordset.h"
#include "documents/document_tables.h"
#include "session/operations.h"
#include "session/session_listener.h"

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace quelvarn {

class DocumentTables;
class Dokumentsprung;
class TableTabs;
struct SessionState;

// The user's favourite documents of each type, and their list over the tables (FrmFavoriten). Follows the frame once it
// is registered there.
class Favoriten : public Rahmenteilnehmer, public TableFollower
{
public:
    Favoriten(SessionState& session, Operations& operations, DocumentTables& tables, TableTabs& tabs,
              Dokumentsprung& jump);

    // --- operations, one for each thing a person can do ---
    void FavoritenZeigen(bool an);
    void zuFavoriten(); // The document shown.
    // A row was clicked; one that only became current moves no table while favourites are tidied up.
    void FavoritAuswaehlen(std::size_t position);
    void zeileGewechselt(std::size_t position);
    void oeffneVerwaltung();   // "Verwalten.....": TBarFavVerwalten comes up.
    void verlasseVerwaltung(); // "Verlassen"
    void FavoritLoeschen();    // The current row of the list.
    void AlleFavoritenLoeschen();

    // --- for other pages; faults pass through ---
    // `schluessel` is that of a document type ("SheetM"). A document that is a favourite already is passed over in
    // silence.
    void FavoritHinzufuegen(const std::string& DokuBez, const std::string& RevBez, std::string_view schluessel,
                            const std::string& filename);
    void tabChanged() override;

    // --- what the frame tells ---
    void datenbankWechselt() override;

    // --- state ---
    bool zeigtFavoriten() const { return zeigtFavoriten_; }
    bool verwaltung() const { return verwaltung_; }
    // The favourites of the tab shown, with the fields of DGFavoriten; nullptr while they are not loaded.
    const Recordset* liste() const;
    bool hatZeilen() const { return liste() && liste()->RecordCount() > 0; }
    unsigned fassung() const { return fassung_; } // Rises with every change of the rows.

private:
    struct Liste
    {
        Recordset zeilen;
        bool FavoritenGeladen = false;
    };

    Liste& geladen(const DokuTyp& typ);
    void FavoritLaden(const DokuTyp& typ, Liste& liste);
    Liste& aktuelle();
    const DokuTyp& typ() const;
    bool stelleAuf(std::size_t position);
    void wechsleZuFavorit();
    void perform(std::string_view text, const std::function<void()>& operation);

    SessionState& session_;
    Operations& operations_;
    Ports& ports_;
    DocumentTables& tables_;
    TableTabs& tabs_;
    Dokumentsprung& jump_;
    std::array<Liste, ANZAHL_DOKUTYPEN> listen_;
    bool zeigtFavoriten_ = false;
    bool verwaltung_ = false;
    unsigned fassung_ = 0;
};

} // namespace quelvarn
