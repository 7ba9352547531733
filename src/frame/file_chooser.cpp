#include "frame/file_chooser.h"

#include "base/collation.h"
#include "base/utf8.h"
#include "base/windows_path.h"
#include "platform/drives.h"
#include "platform/files.h"

#include <algorithm>

namespace quelvarn {

Dateiauswahl::Dateiauswahl(const Ports& ports, std::string_view endung) : ports_(ports), endung_(toLower(endung)) {}

void Dateiauswahl::liesLaufwerke()
{
    laufwerke_.clear();
    for (const Laufwerk& laufwerk : ports_.laufwerke.liste())
        laufwerke_.push_back(laufwerk.eintrag());
}

void Dateiauswahl::setzeLaufwerk(std::string_view eintrag)
{
    setzeOrdner(toUpper(leftCharacters(eintrag, 2)) + "\\"); // Paths name drives in capitals; the list does not.
}

void Dateiauswahl::setzeOrdner(std::string_view ordner)
{
    std::string neu(ordner);
    if (neu.size() == 2 && neu[1] == ':')
        neu += '\\'; // A bare "W:" would be the current folder of that drive.

    std::vector<std::string> unterordner, dateien;
    for (const Ordnereintrag& eintrag : ports_.dateien.inhalt(neu)) {
        if (eintrag.ordner)
            unterordner.push_back(eintrag.name);
        else if (toLower(rightCharacters(eintrag.name, endung_.size())) == endung_)
            dateien.push_back(eintrag.name);
    }
    unterordner_ = std::move(unterordner);
    dateien_ = std::move(dateien);
    ordner_ = std::move(neu);
    datei_.clear();

    const auto gleicherBuchstabe = [this](const std::string& eintrag) {
        return equalText(leftCharacters(eintrag, 2), leftCharacters(ordner_, 2));
    };
    const auto eintrag = std::find_if(laufwerke_.begin(), laufwerke_.end(), gleicherBuchstabe);
    laufwerk_ = eintrag == laufwerke_.end() ? "" : *eintrag;
}

void Dateiauswahl::nachOben()
{
    std::string ohneStrich = ordner_;
    if (ohneStrich.ends_with('\\'))
        ohneStrich.pop_back();
    const std::string oben = Ordnername(ohneStrich);
    if (!oben.empty() && oben != "\\") // A share has nothing above it either.
        setzeOrdner(oben);
}

void Dateiauswahl::zeigeDatei(std::string_view pfad)
{
    setzeOrdner(Ordnername(pfad));
    datei_ = DateiName(pfad);
}

std::string Dateiauswahl::pfad(std::string_view name) const
{
    return ordner_ + (ordner_.ends_with('\\') ? "" : "\\") + std::string(name);
}

} // namespace quelvarn
