#include "register/favourites.h"

#include "base/text.h"
#include "base/windows_path.h"
#include "documents/row_memory.h"
#include "platform/boxes.h"
#include "register/document_jump.h"
#include "register/favourite_rows.h"
#include "register/table_tabs.h"
#include "session/error_report.h"
#include "session/session_state.h"

#include <algorithm>
#include <cassert>

namespace quelvarn {
namespace {

constexpr std::string_view TITLE = "Favoriten";

Favourite favouriteOf(const Recordset& row)
{
    return {row.Text("DokuBezFavoriten"), row.Text("RevBezFavoriten")};
}

void append(Recordset& rows, const Favourite& favourite, const std::string& filename)
{
    rows.AddNew();
    rows.setField("DokuBezFavoriten", favourite.DokuBez);
    rows.setField("RevBezFavoriten", favourite.RevBez);
    rows.setField("DateinameFavoriten", DateiName(filename));
    rows.setField("filenameFavoriten", filename);
    rows.Update();
}

Recordset newList()
{
    Recordset rows;
    for (const char* field : {"DokuBezFavoriten", "RevBezFavoriten", "DateinameFavoriten", "filenameFavoriten"})
        rows.appendField(field, FieldType::Text);
    rows.Open();
    return rows;
}

std::vector<Favourite> all(const Recordset& rows)
{
    std::vector<Favourite> favourites;
    for (std::size_t i = 0; i < rows.RecordCount(); ++i)
        favourites.push_back({asText(rows.cell(i, "DokuBezFavoriten")), asText(rows.cell(i, "RevBezFavoriten"))});
    return favourites;
}

} // namespace

Favourites::Favourites(Connection& connection, const SessionUser& user, Operations& operations, DocumentTables& tables,
                       TableTabs& tabs, DocumentJump& jump)
    : connection_(connection), user_(user), operations_(operations), ports_(operations.ports()), tables_(tables),
      tabs_(tabs), jump_(jump)
{
    tables_.follow(*this);
}

Favourites::List& Favourites::loaded(const DocumentType& type)
{
    List& list = lists_[static_cast<std::size_t>(type.tab)];
    if (!list.FavoritenGeladen)
        FavoritLaden(type, list);
    return list;
}

const DocumentType& Favourites::type() const
{
    return DOCUMENT_TYPES[static_cast<std::size_t>(tables_.tab())];
}

Favourites::List& Favourites::current()
{
    return lists_[static_cast<std::size_t>(tables_.tab())];
}

// Without their files the favourites stand all the same, and are read again next time.
void Favourites::FavoritLaden(const DocumentType& type, List& list)
{
    const std::vector<Favourite> favourites = readFavourites(connection_, user_, type);
    std::vector<std::string> files(favourites.size());
    list.FavoritenGeladen = guarded(ports_.boxes, "Modul: Ermitteln filename für DokuBez und RevBez",
                                    "Fehler beim Ermitteln filename für DokuBez und RevBez!",
                                    [&] { files = filesOf(connection_, type, favourites); });
    list.rows = newList();
    for (std::size_t i = 0; i < favourites.size(); ++i)
        append(list.rows, favourites[i], files[i]);
    if (!list.rows.empty())
        list.rows.MoveFirst();
    ++generation_;
}

void Favourites::FavoritHinzufuegen(const std::string& DokuBez, const std::string& RevBez, std::string_view key,
                                    const std::string& filename)
{
    const auto documentType = std::ranges::find(DOCUMENT_TYPES, key, &DocumentType::key);
    assert(documentType != DOCUMENT_TYPES.end());
    const Favourite favourite{DokuBez, RevBez};
    List& list = loaded(*documentType);
    for (const Favourite& exists : all(list.rows))
        if (same(exists, favourite))
            return;
    writeFavourite(connection_, user_, *documentType, favourite);
    append(list.rows, favourite, filename);
    ++generation_;
    operations_.changed(Part::TopBar);
}

void Favourites::toFavourites()
{
    perform("Fehler beim Hinzufügen zu den Favoriten!", [&] {
        const DocumentTable& table = tables_.current();
        if (table.hasRows())
            FavoritHinzufuegen(table.record().DokuBez, table.record().RevBez, type().key, table.record().filename);
    });
}

void Favourites::FavoritenZeigen(bool on)
{
    showsFavourites_ = false;
    management_ = false;
    perform("Fehler beim Anzeigen der Favoriten!", [&] {
        if (!on)
            return;
        loaded(type());
        showsFavourites_ = true;
    });
}

void Favourites::FavoritAuswaehlen(std::size_t position)
{
    perform("Fehler beim Suchen des Favoriten!", [&] {
        if (moveTo(position))
            switchToFavourite();
    });
}

void Favourites::rowChanged(std::size_t position)
{
    if (!management_)
        return FavoritAuswaehlen(position);
    moveTo(position);
    operations_.changed(Part::TopBar);
}

bool Favourites::moveTo(std::size_t position)
{
    Recordset& rows = current().rows;
    if (!rows.open() || position >= rows.RecordCount())
        return false;
    rows.setPosition(position);
    return true;
}

void Favourites::switchToFavourite()
{
    const Recordset& row = current().rows;
    const Favourite favourite = favouriteOf(row);
    const RowMemory sought{favourite.DokuBez, favourite.RevBez, row.Text("filenameFavoriten")};
    if (tables_.current().isFiltered())
        jump_.askAfterFilter(type(), HINT_DOCUMENT);
    if (moveToDocument(tables_.current().visible(), sought))
        return tabs_.followRow();
    ports_.boxes.warn(TITLE, lines({
                                 "Datei ist in der Tabelle nicht vorhanden!",
                                 "es ist ein <Neuaufbau> erforderlich.",
                                 "oder",
                                 "Sie haben keine Zugriffsberechtigung!",
                                 "oder",
                                 "Tabelle ist gefiltert!",
                             }));
}

void Favourites::openManagement()
{
    management_ = showsFavourites_;
    operations_.changed(Part::TopBar);
}

void Favourites::leaveManagement()
{
    management_ = false;
    operations_.changed(Part::TopBar);
}

void Favourites::FavoritLoeschen()
{
    perform("Fehler beim Löschen des Favoriten!", [&] {
        Recordset& rows = current().rows;
        if (!rows.open() || rows.eof() || rows.bof())
            return;
        const std::array favourite{favouriteOf(rows)};
        removeFavourites(connection_, user_, type(), favourite);
        rows.Delete();
        if (rows.eof() && !rows.empty())
            rows.MoveLast();
        ++generation_;
    });
}

void Favourites::AlleFavoritenLoeschen()
{
    perform("Fehler beim Löschen der Favoriten!", [&] {
        Recordset& rows = current().rows;
        if (!rows.open())
            return;
        removeFavourites(connection_, user_, type(), all(rows));
        rows = newList();
        ++generation_;
    });
}

void Favourites::tabChanged()
{
    showsFavourites_ = false;
    management_ = false;
}

void Favourites::databaseChanges()
{
    lists_ = {};
    ++generation_;
    tabChanged();
    operations_.changed(Part::TopBar);
}

const Recordset* Favourites::list() const
{
    const Recordset& rows = lists_[static_cast<std::size_t>(tables_.tab())].rows;
    return rows.open() ? &rows : nullptr;
}

void Favourites::perform(std::string_view text, const std::function<void()>& operation)
{
    operations_.perform(Part::TopBar, TITLE, text, operation);
}

} // namespace quelvarn
