#pragma once

namespace quelvarn {

enum class Seite { Keine, Start, Filter, Dokumente };

// A page or a part of the program that follows what the frame and the start page do; takes only what concerns it.
class Rahmenteilnehmer
{
public:
    virtual ~Rahmenteilnehmer() = default;
    // A page came to the front; its first time is its load.
    virtual void seiteGezeigt(Seite) {}
    // Viewers let go of their files, tool bars go back.
    virtual void zuruecksetzen() {}
    // Another database is about to be opened: what stands open of the old one is let go.
    virtual void datenbankWechselt() {}
    // It is open, and the session holds its settings.
    virtual void datenbankGewechselt() {}
    virtual void baumschalterGeaendert() {}
    virtual void offlineToolGeaendert() {}
    // The program ends; rows are written now. The database is still open.
    virtual void entladen() {}
};

} // namespace quelvarn
