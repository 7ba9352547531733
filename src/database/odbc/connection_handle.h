#pragma once

#include "database/odbc/api.h"

#include <memory>
#include <string>
#include <string_view>

namespace quelvarn::odbc {

// One open connection of a driver. Used by one thread at a time.
class ConnectionHandle
{
public:
    // `text` is a connection text: DRIVER={...};...  `path` of its file, for faults.
    static std::shared_ptr<ConnectionHandle> open(std::string_view text, std::string path);
    ~ConnectionHandle();
    ConnectionHandle(const ConnectionHandle&) = delete;
    ConnectionHandle& operator=(const ConnectionHandle&) = delete;

    // What the driver calls the database behind it.
    std::string databaseName() const;
    void begin();         // Until end, changes stay open.
    void end(bool adopt); // When it throws, they still are.

    RawHandle raw() const { return handle_.raw(); }
    void setSource(std::string_view source) { place_.source = source; }
    const Place& place() const { return place_; } // Of faults.

private:
    ConnectionHandle();
    void setAutomatic(bool on);

    Environment environment_;
    Handle handle_;
    Place place_;
};

} // namespace quelvarn::odbc
