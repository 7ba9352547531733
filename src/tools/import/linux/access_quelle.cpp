#include "tools/import/access_quelle.h"

#include "tools/import/linux/access_leser.h"
#include "tools/import/linux/leseprozess.h"
#include "tools/konsole.h"

#include <fmt/format.h>
#include <fstream>

namespace quelvarn::tools {

namespace {

constexpr std::size_t KOPFLAENGE = 24;
constexpr std::size_t KENNUNG_AB = 4;
constexpr std::size_t VERSION_AB = 20; // 0 is Jet 3, from 1 on pages are twice as long.

void pruefeKopf(const std::filesystem::path& datei)
{
    std::error_code fehler;
    if (!std::filesystem::exists(datei, fehler))
        throw werkzeugfehler(fmt::format("Die Quelle '{}' gibt es nicht.", datei.string()));
    if (!std::filesystem::is_regular_file(datei, fehler))
        throw werkzeugfehler(fmt::format("Die Quelle '{}' ist keine Datei.", datei.string()));
    const auto groesse = std::filesystem::file_size(datei, fehler);
    if (groesse == 0)
        throw werkzeugfehler(fmt::format("Die Quelle '{}' ist leer.", datei.string()));
    std::ifstream strom(datei, std::ios::binary);
    if (!strom)
        throw werkzeugfehler(fmt::format("Die Quelle '{}' lässt sich nicht lesen.", datei.string()));
    std::string kopf(KOPFLAENGE, '\0');
    strom.read(kopf.data(), static_cast<std::streamsize>(kopf.size()));
    const std::string_view kennung = std::string_view(kopf).substr(KENNUNG_AB);
    if (!kopf.starts_with(std::string_view("\0\1\0\0", 4)) ||
        (!kennung.starts_with("Standard Jet DB") && !kennung.starts_with("Standard ACE DB")))
        throw werkzeugfehler(fmt::format("'{}' ist keine Access-Datenbank.", datei.string()));
    const std::uintmax_t seite = kopf[VERSION_AB] == 0 ? 2048 : 4096;
    if (groesse % seite != 0)
        throw werkzeugfehler(fmt::format("Die Access-Datei '{}' ist abgeschnitten: ihr Ende fehlt.", datei.string()));
}

} // namespace

struct AccessQuelle::Prozess : Leseprozess
{
    using Leseprozess::Leseprozess;
};

AccessQuelle::AccessQuelle(const std::filesystem::path& datei, std::span<const std::string> gewuenscht,
                           std::chrono::milliseconds frist)
{
    pruefeKopf(datei);
    prozess_ = std::make_unique<Prozess>([&](Sender& sender) { liesAccessDatei(datei, gewuenscht, sender); }, frist);
    katalog_ = Entpacker(prozess_->naechste().inhalt).katalog();
}

AccessQuelle::~AccessQuelle() = default;

void AccessQuelle::lies(const std::function<void(const Quelltabelle&)>& tabelle,
                        const std::function<void(std::span<const Zelle>)>& zeile)
{
    std::vector<Zelle> zellen;
    for (;;) {
        const Nachricht nachricht = prozess_->naechste();
        Entpacker inhalt(nachricht.inhalt);
        switch (nachricht.art) {
        case Nachrichtenart::Ende:
            return;
        case Nachrichtenart::Tabelle: {
            const Quelltabelle& naechste = katalog_.tabellen.at(inhalt.zahl32());
            zellen.assign(naechste.spalten.size(), {});
            tabelle(naechste);
            break;
        }
        default:
            while (!inhalt.leer() && !zellen.empty()) {
                for (Zelle& zelle : zellen)
                    zelle = inhalt.zelle();
                zeile(zellen);
            }
        }
    }
}

} // namespace quelvarn::tools
