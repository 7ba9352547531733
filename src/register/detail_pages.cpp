#include "register/detail_pages.h"

#include "base/file_text.h"
#include "base/windows_path.h"
#include "database/document_types.h"
#include "filter/template_lookup.h"
#include "platform/files.h"
#include "register/document_questions.h"
#include "session/error_report.h"
#include "session/session_state.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace quelvarn {
namespace {

constexpr std::array<std::string_view, 6> BILDENDUNGEN{"tif", "iff", "png", "jpg", "bmp", "gif"};
constexpr std::array<std::string_view, 4> TEXTENDUNGEN{"txt", "csv", "log", "ini"};
constexpr std::int64_t TEXT_HOECHSTENS = 1 << 20; // bytes; more is for a program of its own.
constexpr std::string_view OHNE_ANSICHT = "Für diese Datei gibt es hier keine Ansicht.\n"
                                          "'Anschauen' öffnet sie in ihrer Anwendung.";

bool enthaelt(const auto& endungen, std::string_view endung)
{
    return std::ranges::find(endungen, endung) != endungen.end();
}

} // namespace

void Detailseiten::fuelle(InfoSeite seite, const DokuTyp& typ, const DokuRecord& record)
{
    typ_ = &typ;
    record_ = record;
    listen_.erase(seite); // After a fault the page is empty, not another document's.
    ++fassung_;
    tiff_.clear(); // A picture behind another page would only cost memory.
    grafik_ = {};
    Connection& verbindung = session_.database.Verbindung;
    switch (seite) {
    case InfoSeite::Revisionen:
        revErstBearb_ = RevErstBearb::Erstellt;
        listen_[seite] = InfoRevision(verbindung, typ.tabelle, record.DokuBez, revErstBearb_);
        break;
    case InfoSeite::BenutzDef:
        listen_[seite] = benutzDefListe(verbindung, typ.tabelleBenutzDef, record);
        break;
    case InfoSeite::SendTo:
        listen_[seite] = sendToListe(verbindung, typ.tabelleBenutzDef, record);
        break;
    case InfoSeite::Hauptmerkmale:
        fuelleHauptmerkmale();
        break;
    case InfoSeite::ZusDoku:
        viewGrafik_ = false;
        LblInfoZusDoku_.clear();
        listen_[seite] = zusDokuListe(verbindung, ports_.dateien, record.filename);
        LblInfoZusDoku_ = zusDokuInfo(listen_[seite]);
        break;
    case InfoSeite::Tiff:
        zeigeTiff();
        break;
    default:
        break;
    }
}

void Detailseiten::leere()
{
    listen_.clear();
    ++fassung_;
    typ_ = nullptr;
    record_ = {};
    LblPfadDateiVorlage_.clear();
    LblInfoZusDoku_.clear();
    viewGrafik_ = false;
    grafik_ = {};
    tiff_.clear();
}

void Detailseiten::fuelleHauptmerkmale()
{
    LblPfadDateiVorlage_.clear();
    LblPfadDateiVorlage_ = VorlageSuchen(session_.database.Verbindung, templateBranch(record_));
    listen_[InfoSeite::Hauptmerkmale] = hauptmerkmalListe(record_, session_, !LblPfadDateiVorlage_.empty());
}

void Detailseiten::setzeRevErstBearb(RevErstBearb ansicht)
{
    operations_.perform(Part::Document, "Revision", "Fehler beim Lesen der Revisionen!", [&] {
        if (typ_ == nullptr)
            return;
        revErstBearb_ = ansicht;
        listen_.erase(InfoSeite::Revisionen);
        ++fassung_;
        listen_[InfoSeite::Revisionen] =
            InfoRevision(session_.database.Verbindung, typ_->tabelle, record_.DokuBez, ansicht);
    });
}

void Detailseiten::zeileGewaehlt(InfoSeite seite, std::size_t position)
{
    operations_.perform(Part::Document, "Eigenschaften des Dokuments", "Fehler beim Anzeigen der Eigenschaften!", [&] {
        const auto liste = listen_.find(seite);
        if (liste == listen_.end() || position >= liste->second.RecordCount())
            return;
        liste->second.setzeAbsolutePosition(position);
        if (seite == InfoSeite::ZusDoku)
            zeigeZusDoku();
    });
}

void Detailseiten::setzeViewGrafikZusDoku(bool an)
{
    operations_.perform(Part::Document, "Graphik anzeigen", "Fehler beim Anzeigen der Datei!", [&] {
        viewGrafik_ = an;
        zeigeZusDoku();
    });
}

void Detailseiten::zeigeZusDoku()
{
    LblInfoZusDoku_ = zusDokuInfo(listen_[InfoSeite::ZusDoku]);
    grafik_ = {};
    const std::string pfad = feldDerZeile(InfoSeite::ZusDoku, "ZusDokufilename");
    if (viewGrafik_ && !pfad.empty() && vorhandenOderBox(pfad))
        grafik_ = bildVon(pfad);
}

Dateibild Detailseiten::bildVon(const std::string& pfad) const
{
    const std::string endung = Dateiendung(pfad);
    if (enthaelt(BILDENDUNGEN, endung))
        return {Dateibild::Art::Bild, pfad, {}};
    const auto attribute = ports_.dateien.attribute(pfad);
    if (!enthaelt(TEXTENDUNGEN, endung) || !attribute || attribute->groesse > TEXT_HOECHSTENS)
        return {Dateibild::Art::Text, {}, std::string(OHNE_ANSICHT)};
    return {Dateibild::Art::Text, {}, decodeFileText(ports_.dateien.lese(pfad))};
}

void Detailseiten::zeigeTiff()
{
    std::string pfad = findTiff(session_.database.Verbindung, ports_.dateien, record_);
    if (pfad.empty())
        pfad = mitEndung(record_.filename, "tif"); // It was there when the tree was built.
    if (vorhandenOderBox(pfad))
        tiff_ = pfad;
}

const Recordset* Detailseiten::liste(InfoSeite seite) const
{
    const auto liste = listen_.find(seite);
    return liste == listen_.end() || !liste->second.offen() ? nullptr : &liste->second;
}

std::string Detailseiten::feldDerZeile(InfoSeite seite, std::string_view feld) const
{
    const Recordset* zeilen = liste(seite);
    return zeilen == nullptr || zeilen->Bof() || zeilen->Eof() ? std::string() : zeilen->Text(feld);
}

} // namespace quelvarn
