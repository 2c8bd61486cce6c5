#pragma once

#include "motif/TextPainter.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/LayoutTypes.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLInteractiveApplication.h"

#include <cairo.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>
#include <vector>

// An image in memory to paint on and to look at.
class PaintedImage {
public:
    explicit PaintedImage(trellis::LayoutSize size)
        : _surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, size.width, size.height)) {}
    ~PaintedImage() { cairo_surface_destroy(_surface); }
    PaintedImage(const PaintedImage&) = delete;
    PaintedImage& operator=(const PaintedImage&) = delete;

    template <class Painting>
    void Paint(const Painting& painting) {
        cairo_t* context = cairo_create(_surface);
        painting(context);
        EXPECT_EQ(cairo_status(context), CAIRO_STATUS_SUCCESS);
        cairo_destroy(context);
        cairo_surface_flush(_surface);
    }
    std::uint32_t At(int x, int y) const {
        const auto* line =
            cairo_image_surface_get_data(_surface) + y * cairo_image_surface_get_stride(_surface);
        return (static_cast<std::uint32_t>(line[4 * x + 2]) << 16) |
               (static_cast<std::uint32_t>(line[4 * x + 1]) << 8) | static_cast<std::uint32_t>(line[4 * x]);
    }
    // How bright each pixel of a rectangle is, as somebody who sees no colours would see it.
    std::vector<int> Greys(const trellis::LayoutRectangle& place) const {
        std::vector<int> greys;
        for (int y = place.y; y < place.y + place.height; ++y)
            for (int x = place.x; x < place.x + place.width; ++x)
                greys.push_back(static_cast<int>(trellis::ThemeColour{At(x, y)}.Luminance() * 255));
        return greys;
    }
    std::set<std::uint32_t> Colours(const trellis::LayoutRectangle& place) const {
        std::set<std::uint32_t> colours;
        for (int y = place.y; y < place.y + place.height; ++y)
            for (int x = place.x; x < place.x + place.width; ++x)
                colours.insert(At(x, y));
        return colours;
    }

private:
    cairo_surface_t* _surface;
};

// A list with two columns, in a dialog that is not shown anywhere.
class ListPaintTest : public testing::Test {
protected:
    void SetUp() override {
        _dialog = new ZOLDlgDialog(nullptr, "Dialog", 0);
        list = new ZOLDlgMultiList(_dialog, "List", 0x40000);
        const ZOLUnicodeString titles[] = {"Name", "Use"};
        list->SetColumnTitles(2, titles);
        list->SetColumnTextWidth(0, 12);
        list->SetColumnTextWidth(1, 8);
    }
    void TearDown() override {
        _dialog->RequestDelayedDestruction();
        trellis::CallbackScope::FreeGivenUp();
    }
    void Fill(const std::vector<std::string>& names) {
        list->ClearLine();
        for (const std::string& name : names)
            list->SetColumnItem(0, name);
    }

    ZOLDlgMultiList* list = nullptr;

private:
    ZOLDlgDialog* _dialog = nullptr;
};
