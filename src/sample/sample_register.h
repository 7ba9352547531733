#pragma once

#include "database/row_sink.h"
#include "sample/documents.h"

namespace quelvarn::sample {

// Writes all tables of a plausible register, one after the other.
void schreibeMusterregister(const Dokumente& dokumente, Zeilensenke& senke);

// The tables that no document type owns; called by schreibeMusterregister.
void schreibeZusBauPart(const Dokumente& dokumente, Zeilensenke& senke);
void schreibeZusBauSubAss(const Dokumente& dokumente, Zeilensenke& senke);
void schreibeVerbindungDraftPart(const Dokumente& dokumente, Zeilensenke& senke);
void schreibeVerbindungWeldAssemb(const Dokumente& dokumente, Zeilensenke& senke);
void schreibeVerbindungPartZusDoku(const Dokumente& dokumente, Zeilensenke& senke);
void schreibeTIFFTabelle(const Dokumente& dokumente, Zeilensenke& senke);
void schreibeIni(const Dokumente& dokumente, Zeilensenke& senke);
void schreibeCheckInOut(const Dokumente& dokumente, Zeilensenke& senke);
void schreibeAdresstabelle(const Dokumente& dokumente, Zeilensenke& senke);
// The user-defined properties of one document type.
void schreibeBenutzDef(const Dokumente& dokumente, Tab tab, Zeilensenke& senke);

// The names (Kennung) of the recipients in the address table.
std::span<const std::string_view> empfaenger();

struct Benutzereigenschaft
{
    std::string_view name;
    std::string wert;
    bool versand = false; // A sent-to note: the value is the path of its order file.
};
std::vector<Benutzereigenschaft> benutzereigenschaften(const Dokumente& dokumente, std::uint32_t teil, int revision);

struct ZusaetzlichesDokument
{
    std::string dateiname;
    std::string filename;
    bool mitsenden = false; // Stored as "/J" behind the path.
};
std::vector<ZusaetzlichesDokument> zusaetzlicheDokumente(const Dokumente& dokumente, std::uint32_t teil, int revision);

// The TIFF of a drawing, "" when it has none.
std::string tiffDatei(const Dokumente& dokumente, std::uint32_t teil, int revision);

// Calls `tun` with the number and the revision of each document.
template <typename Tun> void fuerJedesDokument(const Dokumente& dokumente, Tun tun)
{
    const auto& teile = dokumente.plan().teile();
    for (std::uint32_t teil = 0; teil < teile.size(); ++teil)
        for (int revision = 0; revision < teile[teil].revisionen; ++revision)
            tun(teil, revision);
}

} // namespace quelvarn::sample
