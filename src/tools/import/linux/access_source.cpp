#include "tools/import/access_source.h"

#include "tools/import/access_header.h"
#include "tools/import/linux/access_reader.h"
#include "tools/import/linux/reader_process.h"

namespace quelvarn::tools {

struct AccessQuelle::Leser : Leseprozess
{
    using Leseprozess::Leseprozess;
};

AccessQuelle::AccessQuelle(const std::filesystem::path& datei, std::span<const std::string> gewuenscht,
                           std::chrono::milliseconds frist)
{
    pruefeAccessKopf(datei);
    leser_ = std::make_unique<Leser>([&](Sender& sender) { liesAccessDatei(datei, gewuenscht, sender); }, frist);
    katalog_ = Entpacker(leser_->naechste().inhalt).katalog();
}

AccessQuelle::~AccessQuelle() = default;

void AccessQuelle::lies(const std::function<void(const Quelltabelle&)>& tabelle,
                        const std::function<void(std::span<const Zelle>)>& zeile)
{
    std::vector<Zelle> zellen;
    for (;;) {
        const Nachricht nachricht = leser_->naechste();
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
