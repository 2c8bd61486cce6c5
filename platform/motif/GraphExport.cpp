#include "toolkit/GraphExport.h"

#include "motif/GraphPainter.h"
#include "motif/PangoTextMeasure.h"
#include "toolkit/ZOLGraph.h"

#include <cairo-svg.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>

namespace trellis {

namespace {

constexpr int CannotWrite = 60160;
constexpr int TooLarge = 60161;
constexpr int LongestSide = 32000;     // pixels of an image
constexpr double MostPixels = 120e6;   // of four bytes each
constexpr double SmallestScale = 0.25; // below it no text can be read
constexpr LayoutSize Empty{64, 64};    // of a graph without nodes

struct DestroySurface {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using Surface = std::unique_ptr<cairo_surface_t, DestroySurface>;

cairo_status_t Collect(void* bytes, const unsigned char* data, unsigned length) {
    static_cast<std::string*>(bytes)->append(data, data + length);
    return CAIRO_STATUS_SUCCESS;
}

void PaintOn(cairo_surface_t* surface, GraphPainter& painter, const GraphPicture& picture) {
    cairo_t* context = cairo_create(surface);
    painter.Paint(context, picture);
    cairo_destroy(context);
}

double ScaleOfImage(LayoutSize size) {
    const double side = static_cast<double>(LongestSide) / std::max(size.width, size.height);
    const double pixels = std::sqrt(MostPixels / (static_cast<double>(size.width) * size.height));
    return std::min({1.0, side, pixels});
}

// A whole file takes the place of the old one, or none does. The reason of a failure, else empty.
std::string Replace(const std::filesystem::path& path, const std::string& bytes) {
    std::filesystem::path part = path;
    part += ".part";
    std::error_code problem;
    {
        std::ofstream file(part, std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        file.close();
        if (!file)
            problem = std::error_code(errno, std::generic_category());
    }
    if (!problem)
        std::filesystem::rename(part, path, problem);
    if (!problem)
        return {};
    std::error_code ignored;
    std::filesystem::remove(part, ignored);
    return problem.message();
}

} // namespace

GraphExport::Format GraphExport::FormatOf(const ZOLUnicodeString& path) {
    ZOLUnicodeString upper = path;
    upper.ToUpper();
    return upper.Bytes().ends_with(".PNG") ? Png : Svg;
}

int GraphExport::Save(const ZOLGraph& graph, const ZOLUnicodeString& path, Format format,
                      ZOLGYRError& error) {
    const Theme theme;
    const PangoTextMeasure measure(theme);
    // A drawing of its own: that of the graph belongs to its view, and may have other fonts.
    const GraphDrawing drawing(graph, measure);
    TextPainter text(theme);
    GraphPainter painter(text);

    GraphPicture picture{drawing, graph.GetLayoutStyle(), {}};
    LayoutSize size = drawing.Nodes().empty() ? Empty : drawing.Size();
    size = {size.width + 2 * GraphFrame::Margin, size.height + 2 * GraphFrame::Margin};
    std::string bytes;
    if (format == Svg) {
        picture.frame.area = size;
        Surface surface(cairo_svg_surface_create_for_stream(&Collect, &bytes, size.width, size.height));
        PaintOn(surface.get(), painter, picture);
        cairo_surface_finish(surface.get());
    } else {
        const double scale = ScaleOfImage(size);
        if (scale < SmallestScale) {
            error.Set(TooLarge, 0,
                      {ZOLUnicodeString::FromNumber(size.width), ZOLUnicodeString::FromNumber(size.height)});
            return 0;
        }
        picture.frame.zoom = scale;
        picture.frame.area = {static_cast<int>(std::ceil(size.width * scale)),
                              static_cast<int>(std::ceil(size.height * scale))};
        Surface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, picture.frame.area.width,
                                                   picture.frame.area.height));
        PaintOn(surface.get(), painter, picture);
        cairo_surface_write_to_png_stream(surface.get(), &Collect, &bytes);
    }
    const std::string reason = Replace(path.Bytes(), bytes);
    if (reason.empty())
        return 1;
    error.Set(CannotWrite, 0, {path, reason});
    return 0;
}

} // namespace trellis
