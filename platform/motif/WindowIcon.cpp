#include "motif/WindowIcon.h"

#include "motif/SvgPicture.h"

#include <X11/Xatom.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

namespace trellis {

namespace {

constexpr int Sizes[] = {16, 32, 48};

// Cairo multiplies colours by their opacity, the property wants them plain.
unsigned long PlainColour(std::uint32_t pixel) {
    const std::uint32_t opacity = pixel >> 24;
    if (opacity == 0)
        return 0;
    std::uint32_t plain = opacity << 24;
    for (const unsigned shift : {16U, 8U, 0U})
        plain |= std::min(255U, ((pixel >> shift) & 0xff) * 255 / opacity) << shift;
    return plain;
}

// Adds width, height and the pixels, row by row. The property is of 32 bits, which Xlib takes as long.
void Append(std::vector<unsigned long>& data, const SvgPicture& picture, int side) {
    cairo_surface_t* image = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, side, side);
    cairo_t* context = cairo_create(image);
    picture.Draw(context, 0, 0, side);
    cairo_destroy(context);
    cairo_surface_flush(image);
    data.insert(data.end(), 2, static_cast<unsigned long>(side));
    const unsigned char* row = cairo_image_surface_get_data(image);
    for (int y = 0; y < side; ++y, row += cairo_image_surface_get_stride(image))
        for (int x = 0; x < side; ++x) {
            std::uint32_t pixel = 0;
            std::memcpy(&pixel, row + 4 * x, sizeof pixel);
            data.push_back(PlainColour(pixel));
        }
    cairo_surface_destroy(image);
}

} // namespace

void WindowIcon::Set(Display* display, Window window) {
    const std::optional<SvgPicture> picture = SvgPicture::Read("trellis");
    if (!picture)
        return;
    std::vector<unsigned long> data;
    for (const int side : Sizes)
        Append(data, *picture, side);
    XChangeProperty(display, window, XInternAtom(display, "_NET_WM_ICON", False), XA_CARDINAL, 32,
                    PropModeReplace, reinterpret_cast<const unsigned char*>(data.data()),
                    static_cast<int>(data.size()));
}

} // namespace trellis
