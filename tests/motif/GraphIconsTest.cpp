#include "motif/GraphIcons.h"
#include "motif/PaintFixture.h"
#include "support/TemporaryFolder.h"
#include "values/Settings.h"

#include <cairo-svg.h>

#include <cmath>
#include <functional>
#include <memory>
#include <numeric>
#include <utility>

namespace {

using trellis::GraphIcons;
using trellis::SettingOrigin;
using trellis::Settings;

constexpr const char* RedSquare = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
    <rect width="16" height="16" fill="#ff0000"/></svg>)";

class GraphIconsTest : public testing::Test {
protected:
    void SetUp() override {
        setenv("TRELLIS_SITE_FOLDER", site.Path().c_str(), 1);
        std::vector<ZOLGYRError> problems;
        Settings::Current().Declare("TRACE.SINK", site.Path("trace"), SettingOrigin::SiteFile, "", problems);
    }
    void TearDown() override {
        unsetenv("TRELLIS_SITE_FOLDER");
        Settings::Current().Forget();
    }
    // On white or another ground, in an image of 40 by 40.
    PaintedImage& Draw(const char* name, double side = 16, double zoom = 1, double ground = 1) {
        _image = std::make_unique<PaintedImage>(trellis::LayoutSize{40, 40});
        _image->Paint([&](cairo_t* context) {
            cairo_set_source_rgb(context, ground, ground, ground);
            cairo_paint(context);
            cairo_scale(context, zoom, zoom);
            icons.Draw(context, name, 1.2, 1.2, side);
        });
        return *_image;
    }
    bool IsBlank(const char* name) { return Draw(name).Colours({0, 0, 40, 40}).size() == 1; }

    const trellis::test::TemporaryFolder site;
    GraphIcons icons;

private:
    std::unique_ptr<PaintedImage> _image;
};

TEST_F(GraphIconsTest, AnOpenAndAShutBranchDifferByFormOnEveryGround) {
    for (const double ground : {1.0, 0.75}) {
        std::vector<bool> forms[2];
        for (const auto& [name, form] : {std::pair{"diropen.rgb", &forms[0]}, {"dirclose.rgb", &forms[1]}})
            for (const int grey : Draw(name, 16, 1, ground).Greys({0, 0, 20, 20}))
                form->push_back(grey < 60);
        const auto differences = std::inner_product(forms[0].begin(), forms[0].end(), forms[1].begin(), 0,
                                                    std::plus<>(), std::not_equal_to<>());
        EXPECT_GT(differences, 20) << "pixels, on a ground of " << ground;
    }
}

TEST_F(GraphIconsTest, APictureOfTheSiteIsDrawnForOursAndSharpAtEveryZoom) {
    site.Write("resources/icons/diropen.svg", RedSquare);
    for (const double zoom : {1.0, 1.5, 2.0}) {
        const int side = static_cast<int>(16 * zoom);
        const int begin = static_cast<int>(std::lround(1.2 * zoom));
        const PaintedImage& image = Draw("diropen.rgb", 16, zoom);
        EXPECT_EQ(image.Colours({begin, begin, side, side}), std::set<std::uint32_t>{0xff0000}) << zoom;
        EXPECT_EQ(image.Colours({0, 0, 40, 40}), (std::set<std::uint32_t>{0xff0000, 0xffffff})) << zoom;
    }
}

TEST_F(GraphIconsTest, WhatIsNoPictureDrawsNothingAndIsTracedOnce) {
    site.Write("resources/icons/broken.svg", "<svg xmlns=\"http://www.w3.org/2000/svg\"><rect");
    site.Write("resources/outside.svg", RedSquare);
    for (const char* name : {"broken.rgb", "broken.rgb", "missing.rgb", "../outside.rgb", ".rgb", "diropen"})
        EXPECT_TRUE(IsBlank(name)) << name;
    const std::string trace = site.Read(site.Path("trace"));
    EXPECT_NE(trace.find("broken.svg"), std::string::npos) << trace;
    EXPECT_EQ(trace.find("broken.svg"), trace.rfind("broken.svg")) << trace;
    EXPECT_NE(trace.find("no picture missing"), std::string::npos) << trace;
}

TEST_F(GraphIconsTest, APictureLoadsNothingFromOutsideItsFile) {
    const std::string other = site.Write("resources/icons/other.svg", RedSquare);
    for (const std::string& reference : {std::string("other.svg"), other, "file://" + other}) {
        site.Write("resources/icons/diropen.svg",
                   R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
                      <image href=")" +
                       reference + R"(" width="16" height="16"/></svg>)");
        icons = {};
        EXPECT_TRUE(IsBlank("diropen.rgb")) << reference;
    }
}

TEST_F(GraphIconsTest, APictureInADrawingOfLinesStaysLines) {
    std::string bytes;
    const auto collect = [](void* to, const unsigned char* data, unsigned length) {
        static_cast<std::string*>(to)->append(data, data + length);
        return CAIRO_STATUS_SUCCESS;
    };
    cairo_surface_t* surface = cairo_svg_surface_create_for_stream(collect, &bytes, 20, 20);
    cairo_t* context = cairo_create(surface);
    icons.Draw(context, "diropen.rgb", 0, 0, 16);
    cairo_destroy(context);
    cairo_surface_destroy(surface);
    EXPECT_NE(bytes.find("<path"), std::string::npos);
    EXPECT_EQ(bytes.find("<image"), std::string::npos);
}

} // namespace
