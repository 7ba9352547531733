#pragma once

#include <string>
#include <string_view>

namespace quelvarn {

class Boxes;
struct Ports;
struct OrderSettings;
struct SessionFolders;

// Files that information pages name, and what is said when one cannot be shown.

// The file of a sent order; one that is gone is looked for in the archive, when the user wants it.
void openOrderFile(const Ports& ports, const OrderSettings& orders, const SessionFolders& folders,
                   const std::string& documentPath);
void openFile(const Ports& ports, std::string_view title, const std::string& documentPath);
// False when it is missing; the user has been told then.
bool existsOrBox(const Ports& ports, const std::string& documentPath);
void tellPictureNotLoaded(Boxes& boxes);

} // namespace quelvarn
