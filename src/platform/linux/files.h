#pragma once

#include "platform/files.h"
#include "platform/linux/drive_folder.h"

namespace quelvarn {

// Files under the folders that stand for the drives. Read-only is a file that nobody may write, hidden one whose
// name begins with a point; the archive attribute is an extended attribute of the file.
class LinuxDateien : public Dateien
{
public:
    explicit LinuxDateien(const Laufwerksordner& laufwerke) : laufwerke_(laufwerke) {}

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

    std::filesystem::path systempfad(std::string_view pfad) const override;

private:
    // As systempfad, but a missing drive is a fault.
    std::filesystem::path pfadMitLaufwerk(std::string_view pfad) const;

    const Laufwerksordner& laufwerke_;
};

} // namespace quelvarn
