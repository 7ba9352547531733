#include "viewing/shown_files.h"

#include <gtest/gtest.h>
#include <string>

namespace quelvarn {
namespace {

struct Bildschirm : Viewer
{
    bool zeige(Ansicht ansicht, std::string_view filename) override
    {
        verlauf += "zeige " + std::to_string(static_cast<int>(ansicht)) + "; ";
        return filename != "W:\\weg.par";
    }
    void leere(Ansicht) override {}
    std::string verlauf;
};

struct Register : Nutzungsregister
{
    void trageEin(std::string_view filename, int code) override
    {
        verlauf += "+" + std::string(filename) + std::to_string(code) + " ";
    }
    void trageAus(std::string_view filename, int code) override
    {
        verlauf += "-" + std::string(filename) + std::to_string(code) + " ";
    }
    std::string verlauf;
};

TEST(GezeigteDateien, EinDokumentGiltAlsGezeigtSolangeEsIrgendwoSteht)
{
    Bildschirm bildschirm;
    Register nutzung;
    GezeigteDateien gezeigt(bildschirm, nutzung);

    EXPECT_FALSE(gezeigt.zeige(Ansicht::Dokument, "W:\\weg.par"));
    EXPECT_EQ(nutzung.verlauf, "");
    EXPECT_TRUE(gezeigt.zeige(Ansicht::Dokument, "W:\\a.par"));
    EXPECT_TRUE(gezeigt.zeige(Ansicht::BestehtAus, "W:\\a.par"));
    EXPECT_EQ(nutzung.verlauf, "+W:\\a.par2 ");
    gezeigt.leere(Ansicht::Dokument);
    EXPECT_EQ(nutzung.verlauf, "+W:\\a.par2 ");
    EXPECT_TRUE(gezeigt.zeige(Ansicht::BestehtAus, "W:\\b.asm"));
    EXPECT_EQ(nutzung.verlauf, "+W:\\a.par2 -W:\\a.par2 +W:\\b.asm2 ");
    EXPECT_FALSE(gezeigt.zeige(Ansicht::BestehtAus, "W:\\weg.par"));
    EXPECT_EQ(gezeigt.datei(Ansicht::BestehtAus), "");
    gezeigt.zeige(Ansicht::Eigenschaften, "W:\\c.dft");
    gezeigt.DetachViewers();
    EXPECT_EQ(nutzung.verlauf, "+W:\\a.par2 -W:\\a.par2 +W:\\b.asm2 -W:\\b.asm2 +W:\\c.dft2 -W:\\c.dft2 ");
}

} // namespace
} // namespace quelvarn
