#include "session/ModuleLoader.h"

#include "entry/ZOLDictionary.h"
#include "values/ZOLGYRError.h"

#include <dlfcn.h>

#include <filesystem>
#include <string>

namespace fs = std::filesystem;

namespace trellis {

namespace {

constexpr int ModuleNotLoaded = 60600;

fs::path ModuleFile() {
    std::error_code none;
    const fs::path folder = fs::read_symlink("/proc/self/exe", none).parent_path();
    const std::string file = std::string(TrellisModuleName) + ".so";
    if (fs::exists(folder / file, none))
        return folder / file;
    return folder.parent_path() / TRELLIS_MODULE_FOLDER / file;
}

} // namespace

std::unique_ptr<ZOLIQRDCfgInterfaces> ModuleLoader::Load(ZOLGYRError& error) {
    const fs::path file = ModuleFile();
    const bool loaded = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL) != nullptr;
    void* factory = loaded ? ZOLDictionary::Find(TrellisModuleName) : nullptr;
    if (!factory) {
        const char* reason = loaded ? nullptr : dlerror();
        error.Set(ModuleNotLoaded, 1, {file.string(), reason ? reason : "it does not register itself"});
        return nullptr;
    }
    return std::unique_ptr<ZOLIQRDCfgInterfaces>(reinterpret_cast<TrellisFactory>(factory)());
}

} // namespace trellis
