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

class Connection;
class DocumentTables;
class DocumentJump;
class TableTabs;
struct SessionUser;

// The user's favourite documents of each type, and their list over the tables (FrmFavoriten). Follows the frame once it
// is registered there.
class Favourites : public SessionListener, public TableFollower
{
public:
    Favourites(Connection& connection, const SessionUser& user, Operations& operations, DocumentTables& tables,
               TableTabs& tabs, DocumentJump& jump);

    // --- operations, one for each thing a person can do ---
    void FavoritenZeigen(bool on);
    void toFavourites(); // The document shown.
    // A row was clicked; one that only became current moves no table while favourites are tidied up.
    void FavoritAuswaehlen(std::size_t position);
    void rowChanged(std::size_t position);
    void openManagement();  // "Verwalten.....": TBarFavVerwalten comes up.
    void leaveManagement(); // "Verlassen"
    void FavoritLoeschen(); // The current row of the list.
    void AlleFavoritenLoeschen();

    // --- for other pages; faults pass through ---
    // `key` is that of a document type ("SheetM"). A document that is a favourite already is passed over in
    // silence.
    void FavoritHinzufuegen(const std::string& DokuBez, const std::string& RevBez, std::string_view key,
                            const std::string& filename);
    void tabChanged() override;

    // --- what the frame tells ---
    void databaseChanges() override;

    // --- state ---
    bool showsFavourites() const { return showsFavourites_; }
    bool management() const { return management_; }
    // The favourites of the tab shown, with the fields of DGFavoriten; nullptr while they are not loaded.
    const Recordset* list() const;
    bool hasRows() const { return list() && list()->RecordCount() > 0; }
    unsigned generation() const { return generation_; } // Rises with every change of the rows.

private:
    struct List
    {
        Recordset rows;
        bool FavoritenGeladen = false;
    };

    List& loaded(const DocumentType& type);
    void FavoritLaden(const DocumentType& type, List& list);
    List& current();
    const DocumentType& type() const;
    bool moveTo(std::size_t position);
    void switchToFavourite();
    void perform(std::string_view text, const std::function<void()>& operation);

    Connection& connection_;
    const SessionUser& user_;
    Operations& operations_;
    Ports& ports_;
    DocumentTables& tables_;
    TableTabs& tabs_;
    DocumentJump& jump_;
    std::array<List, DOCUMENT_TYPE_COUNT> lists_;
    bool showsFavourites_ = false;
    bool management_ = false;
    unsigned generation_ = 0;
};

} // namespace quelvarn
