#include "sample/sample_files.h"

#include "base/file_path.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "sample/sample_register.h"
#include "sample/vocabulary.h"

#include <ctime>
#include <fmt/format.h>
#include <fstream>

namespace quelvarn::sample {

namespace {

Laufzeitfehler fileFault(const std::string& text)
{
    return {0, "qvadmin", text};
}

// Takes "W:\..." paths.
class Laufwerk
{
public:
    explicit Laufwerk(std::filesystem::path ordner) : ordner_(std::move(ordner)) {}

    void schreibe(std::string_view pfad, std::string_view inhalt, Zeitpunkt geaendert)
    {
        const auto ziel = systempfad(pfad);
        if (ziel.parent_path() != letzterOrdner_)
            legeOrdnerAn(ziel.parent_path());
        letzterOrdner_ = ziel.parent_path();
        anzahl_ += std::filesystem::exists(ziel) ? 0 : 1; // Revisions share their additional documents.
        std::ofstream datei(ziel, std::ios::binary | std::ios::trunc);
        datei.write(inhalt.data(), static_cast<std::streamsize>(inhalt.size()));
        datei.close();
        if (!datei)
            throw fileFault(fmt::format("'{}' lässt sich nicht schreiben.", utf8FromPath(ziel)));
        std::filesystem::last_write_time(ziel, dateizeit(geaendert));
    }
    void legeOrdnerAn(const std::filesystem::path& ordner)
    {
        std::error_code fehler;
        std::filesystem::create_directories(ordner, fehler);
        if (fehler)
            throw fileFault(
                fmt::format("Der Ordner '{}' lässt sich nicht anlegen: {}", utf8FromPath(ordner), fehler.message()));
    }
    std::filesystem::path systempfad(std::string_view pfad) const
    {
        constexpr std::size_t HINTER_DEM_LAUFWERK = 3;
        return ordner_ / pathFromUtf8(replaceAll(pfad.substr(HINTER_DEM_LAUFWERK), "\\", "/"));
    }
    std::uint64_t anzahl() const { return anzahl_; }

private:
    static std::filesystem::file_time_type dateizeit(Zeitpunkt zeit)
    {
        const Kalenderzeit k = zeit.kalender();
        std::tm lokal{};
        lokal.tm_year = k.jahr - 1900;
        lokal.tm_mon = k.monat - 1;
        lokal.tm_mday = k.tag;
        lokal.tm_hour = k.stunde;
        lokal.tm_min = k.minute;
        lokal.tm_sec = k.sekunde;
        lokal.tm_isdst = -1;
        return std::chrono::file_clock::from_sys(std::chrono::system_clock::from_time_t(std::mktime(&lokal)));
    }

    std::filesystem::path ordner_;
    std::filesystem::path letzterOrdner_;
    std::uint64_t anzahl_ = 0;
};

std::string mitEndung(std::string pfad, std::string_view endung)
{
    return pfad.replace(pfad.size() - 3, 3, endung);
}

// Of four orders two lie in their folder, one in the archive, and one has been deleted.
void schreibeAuftrag(const Benutzereigenschaft& versand, const std::string& titel, std::uint32_t teil, Zeitpunkt zeit,
                     Laufwerk& laufwerk)
{
    const std::string inhalt = fmt::format("Versand an: {}\r\nDokument: {}\r\n", versand.name, titel);
    const std::string name = versand.wert.substr(versand.wert.rfind('\\') + 1);
    if (teil % 4 < 2)
        laufwerk.schreibe(versand.wert, inhalt, zeit);
    else if (teil % 4 == 2)
        laufwerk.schreibe(fmt::format("{}\\Auftragsarchiv\\{}", AUFTRAGSORDNER, name), inhalt, zeit);
}

void schreibeDokument(const Dokumente& dokumente, std::uint32_t teil, int revision, Laufwerk& laufwerk)
{
    const std::string pfad = dokumente.filename(teil, revision);
    const Zeitpunkt geaendert = dokumente.geaendert(teil, revision);
    const std::string titel = fmt::format("{}  {}", dokumente.dateiname(teil, revision), dokumente.titel(teil));
    laufwerk.schreibe(pfad, fmt::format("Platzhalter: {}\r\n", titel), geaendert);
    const auto endung = dokumente.endung(teil);
    if (endung == "dft" && teil % 3 != 0)
        laufwerk.schreibe(mitEndung(pfad, "pdf"), pdfBlatt(titel), geaendert.plusTage(1));
    if (endung == "asm" && teil % 3 == 0)
        laufwerk.schreibe(mitEndung(pfad, "cfg"), "Platzhalter\r\n", geaendert);
    if (const std::string tiff = tiffDatei(dokumente, teil, revision); !tiff.empty())
        laufwerk.schreibe(tiff, tiffBlatt(), geaendert.plusTage(1));
    for (const auto& zusatz : zusaetzlicheDokumente(dokumente, teil, revision)) {
        if (zusatz.dateiname.ends_with(".pdf"))
            laufwerk.schreibe(zusatz.filename, pdfBlatt(zusatz.dateiname), geaendert);
        else if (zusatz.dateiname.ends_with(".tif"))
            laufwerk.schreibe(zusatz.filename, tiffBlatt(), geaendert);
        else if (zusatz.dateiname.ends_with(".txt"))
            laufwerk.schreibe(zusatz.filename, zusatz.dateiname + "\r\n", geaendert);
    }
    for (const auto& eigenschaft : benutzereigenschaften(dokumente, teil, revision))
        if (eigenschaft.versand)
            schreibeAuftrag(eigenschaft, titel, teil, geaendert, laufwerk);
}

} // namespace

std::uint64_t schreibeDateien(const Dokumente& dokumente, const std::filesystem::path& ordner,
                              const std::function<void(std::uint64_t)>& progress)
{
    Laufwerk laufwerk(ordner);
    std::uint64_t dokument = 0;
    laufwerk.legeOrdnerAn(laufwerk.systempfad(AUFTRAGSORDNER));
    fuerJedesDokument(dokumente, [&](std::uint32_t teil, int revision) {
        if (dokument == DOKUMENTE_MIT_DATEI)
            return;
        progress(++dokument);
        schreibeDokument(dokumente, teil, revision, laufwerk);
    });
    return laufwerk.anzahl();
}

} // namespace quelvarn::sample
