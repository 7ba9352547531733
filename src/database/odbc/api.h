#pragma once

#include "database/odbc/faults.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// What the parts of this folder share of ODBC without its headers.
namespace quelvarn::odbc {

using RawHandle = void*;
using Result = short;

enum class HandleKind { Environment, ConnectionHandle, StatementHandle };

// Throws DatabaseFault with the driver's text unless the call succeeded; "no data" counts as success.
void check(Result result, HandleKind kind, RawHandle handle, const Place& place);

// Makes the call, and makes it again for a moment while another program holds the file, the table or the row.
Result repeat(const std::function<Result()>& call, HandleKind kind, RawHandle handle);

// A number in the shape of a pointer, as ODBC wants attributes.
void* asPointer(std::uintptr_t number);

// One allocated handle.
class Handle
{
public:
    Handle(HandleKind kind, RawHandle parent);
    ~Handle();
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    RawHandle raw() const { return raw_; }

private:
    HandleKind kind_;
    RawHandle raw_ = nullptr;
};

// ODBC 3, once for each connection.
class Environment
{
public:
    Environment();
    RawHandle raw() const { return handle_.raw(); }
    std::vector<std::string> driver() const; // Names of the drivers that are installed.

private:
    Handle handle_;
};

} // namespace quelvarn::odbc
