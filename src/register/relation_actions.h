#pragma once

#include "register/relation_page.h"

#include <string>

namespace quelvarn {

class Dokumentsprung;
class Favoriten;
class MainWindow;

// What leads from the document of a row of composition or where-used to another place.
class RelationActions
{
public:
    RelationActions(SessionState& session, Ports& ports, Verwendungsseite& page, Dokumentsprung& jump,
                    Favoriten& favourites, MainWindow& frame)
        : session_(session), ports_(ports), page_(page), jump_(jump), favourites_(favourites), frame_(frame)
    {}

    void open(); // Double click: to the document's table, and into the CAD program.
    void addToFavourites();
    void goToTable();

private:
    bool fileMissing();
    bool jump();

    SessionState& session_;
    Ports& ports_;
    Verwendungsseite& page_;
    Dokumentsprung& jump_;
    Favoriten& favourites_;
    MainWindow& frame_;
};

} // namespace quelvarn
