#include "site/ControlLibrary.h"

#include "values/Settings.h"
#include "values/ZOLGYRError.h"

#include <dlfcn.h>

#include <filesystem>
#include <map>

namespace trellis {

namespace {

constexpr int CannotBeLoaded = 60530;
constexpr int HasNoTable = 60531;
constexpr int IsOfAnotherVersion = 60532;

std::string PathOf(const std::string& setting) {
    const std::filesystem::path path(setting);
    const std::string folder = Settings::SiteFolder();
    return path.is_relative() && !folder.empty() ? (std::filesystem::path(folder) / path).string() : setting;
}

} // namespace

const TrellisControls* ControlLibrary::Controls(ZOLGYRError& error) {
    const std::string setting = Settings::Current().Value("CONTROL_LIBRARY").text;
    if (setting.empty())
        return nullptr;
    static std::map<std::string, const TrellisControls*> known; // by path; null for one that cannot be used
    const std::string path = PathOf(setting);
    const auto [place, isNew] = known.try_emplace(path, nullptr);
    if (isNew)
        place->second = Load(path, error);
    return place->second;
}

const TrellisControls* ControlLibrary::Load(const std::string& path, ZOLGYRError& error) {
    void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        const char* reason = dlerror();
        error.Set(CannotBeLoaded, 0, {path, reason ? reason : ""});
        return nullptr;
    }
    const auto get = reinterpret_cast<TrellisGetControlsFunction>(dlsym(library, TRELLIS_CONTROLS_SYMBOL));
    const TrellisControls* controls = get ? get() : nullptr;
    if (!controls) {
        error.Set(HasNoTable, 0, {path});
        return nullptr;
    }
    if (controls->version == 0 || controls->version > TRELLIS_CONTROLS_VERSION) {
        error.Set(IsOfAnotherVersion, 0,
                  {path, std::to_string(controls->version), std::to_string(TRELLIS_CONTROLS_VERSION)});
        return nullptr;
    }
    return controls;
}

} // namespace trellis
