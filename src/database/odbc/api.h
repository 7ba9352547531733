#pragma once

#include "database/odbc/faults.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// What the parts of this folder share of ODBC without its headers.
namespace quelvarn::odbc {

using RohHandle = void*;
using Ergebnis = short;

enum class Handleart { Umgebung, Verbindung, Anweisung };

// Throws DatabaseFault with the driver's text unless the call succeeded; "no data" counts as success.
void pruefe(Ergebnis ergebnis, Handleart art, RohHandle handle, const Place& place);

// Makes the call, and makes it again for a moment while another program holds the file, the table or the row.
Ergebnis wiederhole(const std::function<Ergebnis()>& aufruf, Handleart art, RohHandle handle);

// A number in the shape of a pointer, as ODBC wants attributes.
void* alsZeiger(std::uintptr_t zahl);

// One allocated handle.
class Handle
{
public:
    Handle(Handleart art, RohHandle eltern);
    ~Handle();
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    RohHandle roh() const { return roh_; }

private:
    Handleart art_;
    RohHandle roh_ = nullptr;
};

// ODBC 3, once for each connection.
class Umgebung
{
public:
    Umgebung();
    RohHandle roh() const { return handle_.roh(); }
    std::vector<std::string> treiber() const; // Names of the drivers that are installed.

private:
    Handle handle_;
};

} // namespace quelvarn::odbc
