#pragma once

#include <string>

namespace quelvarn::bench {

// A window with the list of PartTabelle. Each operation ends when the list is painted.
class Listenfenster
{
public:
    virtual ~Listenfenster() = default;

    // All rows, in the order of the list.
    virtual void oeffne() = 0;
    virtual void schliesse() = 0;
    // Rows whose column has this text anywhere, in any case; "" for all of them.
    virtual void filtere(const std::string& spalte, const std::string& text) = 0;
    // "" for the order of opening.
    virtual void sortiere(const std::string& spalte) = 0;
    // Reads all fields of the row and makes it current.
    virtual void zeigeZeile(int zeile) = 0;
    virtual int anzahl() const = 0;
};

} // namespace quelvarn::bench
