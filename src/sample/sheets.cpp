#include "base/utf8.h"
#include "sample/sample_files.h"

#include <array>
#include <fmt/format.h>

namespace quelvarn::sample {

namespace {

std::string pdfText(std::string_view text)
{
    std::string maskiert;
    for (const char zeichen : toWindows1252(text)) {
        if (zeichen == '(' || zeichen == ')' || zeichen == '\\')
            maskiert += '\\';
        maskiert += zeichen;
    }
    return maskiert;
}

void zahl16(std::string& ziel, std::uint32_t zahl)
{
    ziel += static_cast<char>(zahl & 0xFF);
    ziel += static_cast<char>((zahl >> 8) & 0xFF);
}

void zahl32(std::string& ziel, std::uint32_t zahl)
{
    zahl16(ziel, zahl & 0xFFFF);
    zahl16(ziel, zahl >> 16);
}

constexpr std::uint32_t BREITE = 416; // pixels, a multiple of 8
constexpr std::uint32_t HOEHE = 294;
constexpr std::uint32_t RAND = 8;

// White, with a frame and a title block in its corner.
std::string bildpunkte()
{
    std::string bild;
    for (std::uint32_t y = 0; y < HOEHE; ++y)
        for (std::uint32_t x = 0; x < BREITE; x += 8) {
            const bool waagrecht =
                x < BREITE - 2 * RAND && (y == RAND || y == HOEHE - RAND || (y == HOEHE - 60 && x >= BREITE / 2));
            const bool senkrecht = x == RAND || x == BREITE - 2 * RAND || (x == BREITE / 2 && y > HOEHE - 60);
            const bool innen = x >= RAND && x < BREITE - RAND && y >= RAND && y <= HOEHE - RAND;
            bild += static_cast<char>(!innen ? 0xFF : waagrecht ? 0x00 : senkrecht ? 0x7F : 0xFF);
        }
    return bild;
}

} // namespace

std::string pdfBlatt(std::string_view titel)
{
    const std::string inhalt = fmt::format("BT /F1 14 Tf 60 780 Td ({}) Tj ET\n40 40 515 760 re S", pdfText(titel));
    const std::array<std::string, 5> objekte{
        "<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents 4 0 R /Resources << /Font << /F1 5 0 R >> >> "
        ">>",
        fmt::format("<< /Length {} >>\nstream\n{}\nendstream", inhalt.size(), inhalt),
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /Encoding /WinAnsiEncoding >>"};
    std::string pdf = "%PDF-1.4\n";
    std::string verzeichnis = fmt::format("xref\n0 {}\n0000000000 65535 f \n", objekte.size() + 1);
    for (std::size_t i = 0; i < objekte.size(); ++i) {
        verzeichnis += fmt::format("{:010} 00000 n \n", pdf.size());
        pdf += fmt::format("{} 0 obj\n{}\nendobj\n", i + 1, objekte[i]);
    }
    const auto anfang = pdf.size();
    return pdf + verzeichnis +
           fmt::format("trailer\n<< /Size {} /Root 1 0 R >>\nstartxref\n{}\n%%EOF\n", objekte.size() + 1, anfang);
}

std::string tiffBlatt()
{
    struct Eintrag
    {
        std::uint32_t kennung;
        std::uint32_t typ; // 3 is 16 bits, 4 is 32 bits
        std::uint32_t wert;
    };
    const std::string bild = bildpunkte();
    constexpr std::uint32_t KOPF = 8;
    const std::array<Eintrag, 9> eintraege{{{256, 4, BREITE},
                                            {257, 4, HOEHE},
                                            {258, 3, 1}, // bits a pixel
                                            {259, 3, 1}, // not compressed
                                            {262, 3, 1}, // 0 is black
                                            {273, 4, KOPF},
                                            {277, 3, 1}, // samples a pixel
                                            {278, 4, HOEHE},
                                            {279, 4, static_cast<std::uint32_t>(bild.size())}}};
    std::string tiff = "II";
    zahl16(tiff, 42);
    zahl32(tiff, KOPF + static_cast<std::uint32_t>(bild.size()));
    tiff += bild;
    zahl16(tiff, eintraege.size());
    for (const Eintrag& eintrag : eintraege) {
        zahl16(tiff, eintrag.kennung);
        zahl16(tiff, eintrag.typ);
        zahl32(tiff, 1);
        zahl32(tiff, eintrag.wert);
    }
    zahl32(tiff, 0); // No further page.
    return tiff;
}

} // namespace quelvarn::sample
