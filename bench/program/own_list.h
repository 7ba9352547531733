#pragma once

#include "bench/program/list_window.h"
#include "bench/program/painted.h"
#include "database/connection.h"
#include "database/recordset.h"
#include "ui/controls/grid.h"

#include <filesystem>

namespace quelvarn::bench {

// The grid of the program over a recordset, without the rest of its window.
class EigeneListe : public Listenfenster
{
public:
    explicit EigeneListe(const std::filesystem::path& datei);

    void oeffne() override;
    void schliesse() override;
    void filtere(const std::string& spalte, const std::string& text) override;
    void sortiere(const std::string& spalte) override;
    void zeigeZeile(int zeile) override;
    int anzahl() const override { return static_cast<int>(zeilen_.RecordCount()); }

private:
    void zeige();

    Connection verbindung_;
    Recordset zeilen_;
    Gitter gitter_;
    Malwaechter maler_{gitter_};
    unsigned fassung_ = 0;
};

} // namespace quelvarn::bench
