#pragma once

#include "database/odbc/api.h"

#include <memory>
#include <string>
#include <string_view>

namespace quelvarn::odbc {

// One open connection of a driver. Used by one thread at a time.
class Verbindung
{
public:
    // `text` is a connection text: DRIVER={...};...  `path` of its file, for faults.
    static std::shared_ptr<Verbindung> oeffne(std::string_view text, std::string path);
    ~Verbindung();
    Verbindung(const Verbindung&) = delete;
    Verbindung& operator=(const Verbindung&) = delete;

    // What the driver calls the database behind it.
    std::string datenbankname() const;
    void beginne();                // Until beende, changes stay open.
    void beende(bool uebernehmen); // When it throws, they still are.

    RohHandle roh() const { return handle_.roh(); }
    void setSource(std::string_view source) { place_.source = source; }
    const Place& place() const { return place_; } // Of faults.

private:
    Verbindung();
    void setzeAutomatik(bool an);

    Umgebung umgebung_;
    Handle handle_;
    Place place_;
};

} // namespace quelvarn::odbc
