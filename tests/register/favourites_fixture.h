#pragma once

#include "register/favourites.h"
#include "register_fixture.h"

namespace quelvarn {

// The document page with the user's favourites.
class FavouritesTest : public RegisterTest
{
protected:
    // The grid, one row a line.
    std::string grid() const
    {
        std::string text;
        const Recordset* rows = favourites_.list();
        for (std::size_t i = 0; rows && i < rows->RecordCount(); ++i) {
            for (const char* field : {"DokuBezFavoriten", "RevBezFavoriten", "DateinameFavoriten", "filenameFavoriten"})
                text += asText(rows->cell(i, field)) + "|";
            text += "\n";
        }
        return text;
    }
    // What the Ini table keeps, of all users.
    std::string stored()
    {
        Recordset rows;
        rows.Open("SELECT * FROM Ini WHERE Feld2 = 'Favoriten' ORDER BY Feld1, Feld3, Feld4, Feld5",
                  session_.database.connection);
        std::string text;
        for (; !rows.eof(); rows.MoveNext())
            text += rows.Text("Feld1") + "|" + rows.Text("Feld3") + "|" + rows.Text("Feld4") + "|" +
                    rows.Text("Feld5") + "\n";
        return text;
    }
    void store(const char* user, const char* type, const std::string& DokuBez, const Value& RevBez)
    {
        row("Ini", {{"Feld1", user}, {"Feld2", "Favoriten"}, {"Feld3", type}, {"Feld4", DokuBez}, {"Feld5", RevBez}});
    }

    Favourites& favourites_ = program_.favourites;
};

} // namespace quelvarn
