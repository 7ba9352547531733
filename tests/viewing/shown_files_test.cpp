#include "viewing/shown_files.h"

#include <gtest/gtest.h>
#include <string>

namespace quelvarn {
namespace {

struct Screen : Viewer
{
    bool show(ViewerPlace view, std::string_view filename) override
    {
        course += "zeige " + std::to_string(static_cast<int>(view)) + "; ";
        return filename != "W:\\weg.par";
    }
    void clear(ViewerPlace) override {}
    std::string course;
};

struct Register : UseRegistry
{
    void add(std::string_view filename, int code) override
    {
        course += "+" + std::string(filename) + std::to_string(code) + " ";
    }
    void remove(std::string_view filename, int code) override
    {
        course += "-" + std::string(filename) + std::to_string(code) + " ";
    }
    std::string course;
};

TEST(ShownFiles, ADocumentIsShownWhileItStandsAnywhere)
{
    Screen screen;
    Register use;
    ShownFiles shown(screen, use);

    EXPECT_FALSE(shown.show(ViewerPlace::Document, "W:\\weg.par"));
    EXPECT_EQ(use.course, "");
    EXPECT_TRUE(shown.show(ViewerPlace::Document, "W:\\a.par"));
    EXPECT_TRUE(shown.show(ViewerPlace::ConsistsOf, "W:\\a.par"));
    EXPECT_EQ(use.course, "+W:\\a.par2 ");
    shown.clear(ViewerPlace::Document);
    EXPECT_EQ(use.course, "+W:\\a.par2 ");
    EXPECT_TRUE(shown.show(ViewerPlace::ConsistsOf, "W:\\b.asm"));
    EXPECT_EQ(use.course, "+W:\\a.par2 -W:\\a.par2 +W:\\b.asm2 ");
    EXPECT_FALSE(shown.show(ViewerPlace::ConsistsOf, "W:\\weg.par"));
    EXPECT_EQ(shown.file(ViewerPlace::ConsistsOf), "");
    shown.show(ViewerPlace::Properties, "W:\\c.dft");
    shown.DetachViewers();
    EXPECT_EQ(use.course, "+W:\\a.par2 -W:\\a.par2 +W:\\b.asm2 -W:\\b.asm2 +W:\\c.dft2 -W:\\c.dft2 ");
}

} // namespace
} // namespace quelvarn
