#pragma once

#include "database/recordset.h"

#include <string>
#include <string_view>

namespace quelvarn {

class Connection;
struct DokuRecord;

// The user-defined rows of a document, in recordsets in memory. A fault of the database throws.

// Name, Wert: the user-defined rows that are no sent-to notes.
Recordset userDefinedList(Connection& connection, std::string_view tableUserDef, const DokuRecord& record);
// SendToDatum, Kennung, OrderDateiname, Orderfilename: the sent-to notes.
Recordset sendToList(Connection& connection, std::string_view tableUserDef, const DokuRecord& record);
// "14.02.11  10:30" from the twelve digits before the ending of an order file; "" without them.
std::string SendToDatum(std::string_view OrderDateiname);

} // namespace quelvarn
