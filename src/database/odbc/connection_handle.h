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
    // `text` is a connection text: DRIVER={...};...
    static std::shared_ptr<Verbindung> oeffne(std::string_view text);
    ~Verbindung();
    Verbindung(const Verbindung&) = delete;
    Verbindung& operator=(const Verbindung&) = delete;

    // What the driver calls the database behind it.
    std::string datenbankname() const;
    void beginne();                // Until beende, changes stay open.
    void beende(bool uebernehmen); // When it throws, they still are.

    RohHandle roh() const { return handle_.roh(); }
    void setzeQuelle(std::string_view quelle) { quelle_ = quelle; }
    const std::string& quelle() const { return quelle_; } // The source of faults.

private:
    Verbindung();
    void setzeAutomatik(bool an);

    Umgebung umgebung_;
    Handle handle_;
    std::string quelle_ = "ODBC";
};

} // namespace quelvarn::odbc
