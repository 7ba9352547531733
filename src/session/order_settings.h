#pragma once

#include <array>
#include <string>

namespace quelvarn {

struct PrintDefaults
{
    std::string Printer;
    std::string PaperSize;
    std::string ColorMode;
    int NumCopies = 0; // For PDF: the resolution in dots per inch.
    std::string Orientation;
    double PlotScale = 0;
    int PfadArt = 1;  // PDF only
    std::string Pfad; // PDF only
};

// What orders are made with.
struct OrderSettings
{
    std::string PlotPfad;
    std::string OfflineTool = "Talvik";
    std::array<std::string, 10> PlotDrucker; // A0 to A4 Color, then A0 to A4 Mono.
    bool PlotDruckerKomplett = false;
    std::string PdfDrucker;
    std::string OfflineArt;
    std::string OfflineNummer;
    std::string OfflineExportArt;
    int ZipStufe = 0; // 0 Normal, 1 Maximum, 2 Minimum, 3 Schnell
    std::string ZipPasswort;
    PrintDefaults PlotVorgabe;
    PrintDefaults PdfVorgabe;
    bool OrdersLocal = false; // Orders go to OrdnerOfflineVersand; not stored.
};

} // namespace quelvarn
