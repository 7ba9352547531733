#pragma once

#include "platform/files.h"

namespace quelvarn {

// The files of the system itself; paths may have any length.
class WindowsDateien : public Dateien
{
public:
    bool dateiVorhanden(std::string_view pfad) const override;
    bool ordnerVorhanden(std::string_view pfad) const override;
    void ordnerAnlegen(std::string_view pfad) override;
    std::vector<Ordnereintrag> inhalt(std::string_view ordner) const override;

    std::optional<Dateiattribute> attribute(std::string_view pfad) const override;
    void setzeSchreibschutz(std::string_view pfad, bool gesetzt) override;
    void setzeArchiv(std::string_view pfad, bool gesetzt) override;

    std::string lese(std::string_view pfad) const override;
    void schreibe(std::string_view pfad, std::string_view inhalt) override;
    void kopiere(std::string_view von, std::string_view nach) override;
    void loesche(std::string_view pfad) override;

    // In the form for long paths only where it must be: other programs' libraries do not all know it.
    std::filesystem::path systempfad(std::string_view pfad) const override;

private:
    // Empty when the path names neither drive nor share.
    std::wstring systemname(std::string_view pfad) const;
    // As systemname, but a missing drive is a fault.
    std::wstring nameMitLaufwerk(std::string_view pfad) const;
    void setzeAttribut(std::string_view pfad, unsigned long attribut, bool gesetzt);
};

} // namespace quelvarn
