#pragma once

#include "documents/document_record.h"
#include "register/detail_lists.h"
#include "register/info_pages.h"
#include "session/operations.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace quelvarn {

struct DokuTyp;
struct SessionState;

// A file to be shown on an information page. Pictures are drawn, texts are read, for others a hint stands.
struct Dateibild
{
    enum class Art { Keins, Bild, Text };
    Art art = Art::Keins;
    std::string datei; // The picture's path, "" for none.
    std::string text;
    bool operator==(const Dateibild&) const = default;
};

// State and operations of the information pages that are read from the database. A page is filled when it comes up,
// and stays so until it comes up again.
class Detailseiten
{
public:
    Detailseiten(SessionState& session, Operations& operations)
        : session_(session), operations_(operations), ports_(operations.ports())
    {}

    // For a document of this type; does nothing for a page of another kind. Faults pass through.
    void fuelle(InfoSeite seite, const DokuTyp& typ, const DokuRecord& record);
    void leere();

    // --- operations, one for each thing a person can do ---
    void setzeRevErstBearb(RevErstBearb ansicht); // OpRevErstBearb
    void zeileGewaehlt(InfoSeite seite, std::size_t position);
    void oeffneAuftrag();                   // CmSendTo
    void setzeViewGrafikZusDoku(bool an);   // ChViewGrafikZusDoku
    void oeffneZusDoku();                   // CmStartZusDoku
    void bildNichtGeladen(InfoSeite seite); // The picture on this page turned out to be none.

    // --- state, for the projection ---
    // nullptr for no rows; another `fassung` means other rows.
    const Recordset* liste(InfoSeite seite) const;
    unsigned fassung() const { return fassung_; }
    RevErstBearb OpRevErstBearb() const { return revErstBearb_; }
    const std::string& LblPfadDateiVorlage() const { return LblPfadDateiVorlage_; }
    const std::string& LblInfoZusDoku() const { return LblInfoZusDoku_; }
    bool ChViewGrafikZusDoku() const { return viewGrafik_; }
    const Dateibild& grafikZusDoku() const { return grafik_; }
    const std::string& tiff() const { return tiff_; } // "" when none is shown
    std::filesystem::path systempfad(std::string_view pfad) const;

private:
    void fuelleHauptmerkmale();
    void zeigeTiff();
    void zeigeZusDoku();
    Dateibild bildVon(const std::string& pfad) const;
    void oeffne(std::string_view titel, const std::string& pfad);
    bool vorhandenOderBox(const std::string& pfad);
    std::string feldDerZeile(InfoSeite seite, std::string_view feld) const;

    SessionState& session_;
    Operations& operations_;
    Ports& ports_;
    const DokuTyp* typ_ = nullptr;
    DokuRecord record_;
    std::map<InfoSeite, Recordset> listen_;
    unsigned fassung_ = 0;
    RevErstBearb revErstBearb_ = RevErstBearb::Erstellt;
    std::string LblPfadDateiVorlage_;
    std::string LblInfoZusDoku_;
    bool viewGrafik_ = false;
    Dateibild grafik_;
    std::string tiff_;
};

} // namespace quelvarn
