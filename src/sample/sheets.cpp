#include "sample/sheets.h"

#include "base/utf8.h"
#include "sample/sample_files.h"
#include "sample/vocabulary_machines.h"

#include <array>
#include <fmt/format.h>

namespace quelvarn::sample {

namespace {

std::string pdfText(std::string_view text)
{
    std::string masked;
    for (const char character : toWindows1252(text)) {
        if (character == '(' || character == ')' || character == '\\')
            masked += '\\';
        masked += character;
    }
    return masked;
}

void number16(std::string& target, std::uint32_t number)
{
    target += static_cast<char>(number & 0xFF);
    target += static_cast<char>((number >> 8) & 0xFF);
}

void number32(std::string& target, std::uint32_t number)
{
    number16(target, number & 0xFFFF);
    number16(target, number >> 16);
}

constexpr std::uint32_t WIDTH = 416; // pixels, a multiple of 8
constexpr std::uint32_t HEIGHT = 294;
constexpr std::uint32_t MARGIN = 8;

// White, with a frame and a title block in its corner.
std::string pixels()
{
    std::string picture;
    for (std::uint32_t y = 0; y < HEIGHT; ++y)
        for (std::uint32_t x = 0; x < WIDTH; x += 8) {
            const bool horizontal =
                x < WIDTH - 2 * MARGIN && (y == MARGIN || y == HEIGHT - MARGIN || (y == HEIGHT - 60 && x >= WIDTH / 2));
            const bool vertical = x == MARGIN || x == WIDTH - 2 * MARGIN || (x == WIDTH / 2 && y > HEIGHT - 60);
            const bool inside = x >= MARGIN && x < WIDTH - MARGIN && y >= MARGIN && y <= HEIGHT - MARGIN;
            picture += static_cast<char>(!inside ? 0xFF : horizontal ? 0x00 : vertical ? 0x7F : 0xFF);
        }
    return picture;
}

} // namespace

std::string pdfSheet(std::string_view title)
{
    const std::string content = fmt::format("BT /F1 14 Tf 60 780 Td ({}) Tj ET\n40 40 515 760 re S", pdfText(title));
    const std::array<std::string, 5> objects{
        "<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents 4 0 R /Resources << /Font << /F1 5 0 R >> >> "
        ">>",
        fmt::format("<< /Length {} >>\nstream\n{}\nendstream", content.size(), content),
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /Encoding /WinAnsiEncoding >>"};
    std::string pdf = "%PDF-1.4\n";
    std::string directory = fmt::format("xref\n0 {}\n0000000000 65535 f \n", objects.size() + 1);
    for (std::size_t i = 0; i < objects.size(); ++i) {
        directory += fmt::format("{:010} 00000 n \n", pdf.size());
        pdf += fmt::format("{} 0 obj\n{}\nendobj\n", i + 1, objects[i]);
    }
    const auto begin = pdf.size();
    return pdf + directory +
           fmt::format("trailer\n<< /Size {} /Root 1 0 R >>\nstartxref\n{}\n%%EOF\n", objects.size() + 1, begin);
}

std::string tiffSheet()
{
    struct Entry
    {
        std::uint32_t addressCode;
        std::uint32_t type; // 3 is 16 bits, 4 is 32 bits
        std::uint32_t value;
    };
    const std::string picture = pixels();
    constexpr std::uint32_t HEADING = 8;
    const std::array<Entry, 9> entries{{{256, 4, WIDTH},
                                        {257, 4, HEIGHT},
                                        {258, 3, 1}, // bits a pixel
                                        {259, 3, 1}, // not compressed
                                        {262, 3, 1}, // 0 is black
                                        {273, 4, HEADING},
                                        {277, 3, 1}, // samples a pixel
                                        {278, 4, HEIGHT},
                                        {279, 4, static_cast<std::uint32_t>(picture.size())}}};
    std::string tiff = "II";
    number16(tiff, 42);
    number32(tiff, HEADING + static_cast<std::uint32_t>(picture.size()));
    tiff += picture;
    number16(tiff, entries.size());
    for (const Entry& entry : entries) {
        number16(tiff, entry.addressCode);
        number16(tiff, entry.type);
        number32(tiff, 1);
        number32(tiff, entry.value);
    }
    number32(tiff, 0); // No further page.
    return tiff;
}

} // namespace quelvarn::sample
