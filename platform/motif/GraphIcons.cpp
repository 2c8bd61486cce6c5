#include "motif/GraphIcons.h"

#include <algorithm>
#include <cmath>

namespace trellis {

namespace {

constexpr std::string_view PixmapEnding = ".rgb";
constexpr int LargestImage = 512;      // pixels to each side
constexpr std::size_t MostImages = 64; // kept; zooming leaves one behind at every step

bool HasPixels(cairo_t* context) {
    const cairo_surface_type_t type = cairo_surface_get_type(cairo_get_target(context));
    return type == CAIRO_SURFACE_TYPE_IMAGE || type == CAIRO_SURFACE_TYPE_XLIB;
}

} // namespace

void GraphIcons::Draw(cairo_t* context, std::string_view name, double x, double y, double side) {
    if (!name.ends_with(PixmapEnding))
        return;
    name.remove_suffix(PixmapEnding.size());
    const std::string base(name);
    const SvgPicture* picture = Find(base);
    if (!picture)
        return;
    if (!HasPixels(context)) {
        picture->Draw(context, x, y, side);
        return;
    }
    double width = side;
    double height = side;
    cairo_user_to_device_distance(context, &width, &height);
    cairo_user_to_device(context, &x, &y);
    const int pixels = std::clamp(static_cast<int>(std::lround(width)), 1, LargestImage);
    cairo_save(context);
    cairo_identity_matrix(context);
    cairo_set_source_surface(context, Image(base, *picture, pixels), std::round(x), std::round(y));
    cairo_paint(context);
    cairo_restore(context);
}

const SvgPicture* GraphIcons::Find(const std::string& name) {
    auto found = _pictures.find(name);
    if (found == _pictures.end())
        found = _pictures.emplace(name, SvgPicture::Read(name)).first;
    return found->second ? &*found->second : nullptr;
}

cairo_surface_t* GraphIcons::Image(const std::string& name, const SvgPicture& picture, int pixels) {
    if (_images.size() >= MostImages)
        _images.clear();
    Surface& image = _images[{name, pixels}];
    if (!image) {
        image.reset(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixels, pixels));
        cairo_t* context = cairo_create(image.get());
        picture.Draw(context, 0, 0, pixels);
        cairo_destroy(context);
    }
    return image.get();
}

} // namespace trellis
