#include "values/ResourceFolders.h"

#include "values/Settings.h"

#include <cstdlib>
#include <filesystem>

namespace fs = std::filesystem;

namespace trellis {

std::string ResourceFolders::Root() {
    if (const char* named = std::getenv("TRELLIS_RESOURCES"); named && *named)
        return named;
    std::error_code none;
    const fs::path program = fs::read_symlink("/proc/self/exe", none);
    return (program.parent_path().parent_path() / "share" / "trellis" / "resources").string();
}

std::vector<std::string> ResourceFolders::Search() {
    std::vector<fs::path> wanted;
    if (const std::string site = Settings::SiteFolder(); !site.empty())
        wanted.push_back(fs::path(site) / "resources");
    const std::string language = Settings::Current().Value("LANGUAGE").text;
    if (!language.empty() && language != "en" && language.find('/') == std::string::npos)
        wanted.push_back(fs::path(Root()) / language);
    wanted.push_back(fs::path(Root()) / "en");

    std::vector<std::string> folders;
    std::error_code none;
    for (const fs::path& folder : wanted)
        if (fs::is_directory(folder, none))
            folders.push_back(folder.string());
    return folders;
}

std::vector<std::string> ResourceFolders::FindAll(const std::string& fileName) {
    std::vector<std::string> files;
    if (fileName.empty() || fileName.find('/') != std::string::npos)
        return files;
    std::error_code none;
    for (const std::string& folder : Search())
        if (const fs::path file = fs::path(folder) / fileName; fs::is_regular_file(file, none))
            files.push_back(file.string());
    return files;
}

} // namespace trellis
