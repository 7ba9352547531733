#pragma once

#include <string>
#include <vector>

namespace quelvarn {

struct Laufwerk
{
    std::string buchstabe; // "W:"
    std::string freigabe;  // "\\server\share" of a mapped share, else ""

    // As the drive list shows it: "w:" or "w: [\\server\share]".
    std::string eintrag() const;
};

class Laufwerke
{
public:
    virtual ~Laufwerke() = default;
    // In order of the letters.
    virtual std::vector<Laufwerk> liste() const = 0;
};

} // namespace quelvarn
