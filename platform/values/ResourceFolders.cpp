#include "values/ResourceFolders.h"

#include "values/Settings.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>

namespace fs = std::filesystem;

namespace trellis {

std::string ResourceFolders::Root() {
    if (const char* named = std::getenv("TRELLIS_RESOURCES"); named && *named)
        return named;
    std::error_code none;
    static const fs::path program = fs::read_symlink("/proc/self/exe", none);
    return (program.parent_path().parent_path() / "share" / "trellis" / "resources").string();
}

namespace {

using Folders = std::vector<std::string>;

// Those that might be there, in the order of the search.
Folders Wanted() {
    Folders wanted;
    if (const std::string site = Settings::SiteFolder(); !site.empty())
        wanted.push_back((fs::path(site) / "resources").string());
    const std::string root = ResourceFolders::Root();
    const std::string language = Settings::Current().Value("LANGUAGE").text;
    if (!language.empty() && language != "en" && language.find('/') == std::string::npos)
        wanted.push_back((fs::path(root) / language).string());
    wanted.push_back((fs::path(root) / "en").string());
    return wanted;
}

} // namespace

// Every text that is shown comes by here, so the disk is asked once in a while only.
std::vector<std::string> ResourceFolders::Search() {
    using Clock = std::chrono::steady_clock;
    struct Answer {
        Folders wanted;
        Folders found;
        Clock::time_point time;
    };
    static thread_local Answer last;
    const Clock::time_point now = Clock::now();
    Folders wanted = Wanted();
    if (wanted == last.wanted && now - last.time < std::chrono::seconds(1))
        return last.found;
    last = {std::move(wanted), {}, now};
    std::error_code none;
    for (const std::string& folder : last.wanted)
        if (fs::is_directory(folder, none))
            last.found.push_back(folder);
    return last.found;
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
