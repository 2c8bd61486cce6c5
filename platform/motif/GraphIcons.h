#pragma once

#include "motif/SvgPicture.h"

#include <map>
#include <memory>
#include <string_view>
#include <utility>

namespace trellis {

// GraphIcons: the small pictures of nodes, by the names that pixmaps have without a path. The file of
// "diropen.rgb" is icons/diropen.svg. Pictures are read once, and drawn once per size: what stands many times in
// a graph is copied.
class GraphIcons {
public:
    // Draws the picture into a square of the drawing. On a screen it begins at a whole pixel; a drawing that is
    // saved by lines gets lines. A name without a picture draws nothing.
    void Draw(cairo_t* context, std::string_view name, double x, double y, double side);

private:
    struct DestroySurface {
        void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    };
    using Surface = std::unique_ptr<cairo_surface_t, DestroySurface>;

    const SvgPicture* Find(const std::string& name);
    // Drawn on pixels, that many to each side.
    cairo_surface_t* Image(const std::string& name, const SvgPicture& picture, int pixels);

    std::map<std::string, std::optional<SvgPicture>> _pictures;
    std::map<std::pair<std::string, int>, Surface> _images;
};

} // namespace trellis
