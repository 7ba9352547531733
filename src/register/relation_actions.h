#pragma once

#include "register/relation_page.h"

#include <string>

namespace quelvarn {

class Connection;
class DocumentJump;
class Favourites;
class MainWindow;

// What leads from the document of a row of composition or where-used to another place.
class RelationActions
{
public:
    RelationActions(Connection& connection, Ports& ports, RelationPage& page, DocumentJump& jump,
                    Favourites& favourites, MainWindow& frame)
        : connection_(connection), ports_(ports), page_(page), jump_(jump), favourites_(favourites), frame_(frame)
    {}

    void open(); // Double click: to the document's table, and into the CAD program.
    void addToFavourites();
    void goToTable();

private:
    bool fileMissing();
    bool jump();

    Connection& connection_;
    Ports& ports_;
    RelationPage& page_;
    DocumentJump& jump_;
    Favourites& favourites_;
    MainWindow& frame_;
};

} // namespace quelvarn
