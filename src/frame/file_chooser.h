#pragma once

#include "platform/ports.h"

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// A drive list, a folder list and a file list that follow one another. Folders are Windows paths.
class Dateiauswahl
{
public:
    // `endung` with its dot: only files that end so, in any case, are listed.
    Dateiauswahl(const Ports& ports, std::string_view endung);

    // Each throws Laufzeitfehler when the folder cannot be read, and leaves everything as it was.
    void setzeLaufwerk(std::string_view eintrag); // An entry of laufwerke(), or only its letter and colon.
    void setzeOrdner(std::string_view ordner);
    void nachOben(); // At the root of a drive nothing happens.
    void liesLaufwerke();
    // Goes to the folder of this file and picks it there.
    void zeigeDatei(std::string_view pfad);
    void waehleDatei(std::string_view name) { datei_ = name; }

    const std::vector<std::string>& laufwerke() const { return laufwerke_; }
    const std::string& laufwerk() const { return laufwerk_; } // The entry of the drive now shown.
    const std::string& ordner() const { return ordner_; }     // "W:\" or "W:\Ordner"
    const std::vector<std::string>& unterordner() const { return unterordner_; }
    const std::vector<std::string>& dateien() const { return dateien_; }
    const std::string& datei() const { return datei_; } // The picked one, "" for none.
    // Folder and this file's name, with one backslash between them.
    std::string pfad(std::string_view name) const;

private:
    const Ports& ports_;
    std::string endung_;
    std::vector<std::string> laufwerke_;
    std::string laufwerk_;
    std::string ordner_;
    std::vector<std::string> unterordner_;
    std::vector<std::string> dateien_;
    std::string datei_;
};

} // namespace quelvarn
