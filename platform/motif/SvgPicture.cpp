#include "motif/SvgPicture.h"

#include "values/ResourceFolders.h"
#include "values/ZOLGYRTrace.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace fs = std::filesystem;

namespace trellis {

namespace {

// Texts are sought in the folders of a language alone; pictures lie beside these, as they speak none.
std::optional<fs::path> FileOf(const std::string& name) {
    if (name.empty() || name.find('/') != std::string::npos)
        return std::nullopt;
    std::vector<std::string> folders = ResourceFolders::Search();
    folders.push_back(ResourceFolders::Root());
    std::error_code none;
    for (const std::string& folder : folders)
        if (const fs::path file = fs::path(folder) / "icons" / (name + ".svg");
            fs::is_regular_file(file, none))
            return file;
    return std::nullopt;
}

// Writes the reason to the trace and frees it.
void Note(const std::string& picture, GError* reason) {
    ZOLGYRTrace::Note("SvgPicture: " + picture + ": " + (reason ? reason->message : "unknown reason"));
    g_clear_error(&reason);
}

} // namespace

std::optional<SvgPicture> SvgPicture::Read(const std::string& name) {
    const std::optional<fs::path> file = FileOf(name);
    if (!file) {
        ZOLGYRTrace::Note("SvgPicture: there is no picture " + name);
        return std::nullopt;
    }
    std::ifstream in(*file, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), {});
    // Read from memory it knows no folder, so that it can refer to no other file.
    GError* reason = nullptr;
    RsvgHandle* handle =
        rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(bytes.data()), bytes.size(), &reason);
    if (handle)
        return SvgPicture(handle);
    Note(file->string(), reason);
    return std::nullopt;
}

void SvgPicture::Draw(cairo_t* context, double x, double y, double side) const {
    const RsvgRectangle place{x, y, side, side};
    GError* reason = nullptr;
    if (!rsvg_handle_render_document(_handle.get(), context, &place, &reason))
        Note("a picture cannot be drawn", reason);
}

} // namespace trellis
