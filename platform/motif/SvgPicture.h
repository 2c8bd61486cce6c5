#pragma once

#include <cairo.h>
#include <librsvg/rsvg.h>

#include <memory>
#include <optional>
#include <string>

namespace trellis {

// SvgPicture: a picture from the folders of resources, which stays sharp at every size. It is read from
// icons/NAME.svg: that of the site before that of the language before ours. Nothing outside of its file is
// ever loaded.
class SvgPicture {
public:
    // Empty, with a line in the trace, when there is no such file or when it is no SVG. A name that could leave
    // the folder is no name.
    static std::optional<SvgPicture> Read(const std::string& name);

    // Draws it into a square; the proportions of the picture are kept. What cannot be drawn leaves a line in
    // the trace.
    void Draw(cairo_t* context, double x, double y, double side) const;

private:
    struct Unref {
        void operator()(RsvgHandle* handle) const { g_object_unref(handle); }
    };

    explicit SvgPicture(RsvgHandle* handle) : _handle(handle) {}

    std::unique_ptr<RsvgHandle, Unref> _handle;
};

} // namespace trellis
