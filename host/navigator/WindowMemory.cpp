#include "navigator/WindowMemory.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace trellis {

namespace {

constexpr int Smallest = 200;
constexpr int Largest = 20000;

// Empty where the user has no folder.
fs::path StateFile() {
    const char* state = std::getenv("XDG_STATE_HOME");
    const char* home = std::getenv("HOME");
    const bool hasState = state && *state == '/';
    if (!hasState && !(home && *home))
        return {};
    return (hasState ? fs::path(state) : fs::path(home) / ".local" / "state") / "trellis" / "navigator";
}

bool IsSensible(LayoutSize size) {
    return size.width >= Smallest && size.width <= Largest && size.height >= Smallest &&
           size.height <= Largest;
}

} // namespace

std::optional<LayoutSize> WindowMemory::Size() {
    std::ifstream file(StateFile());
    std::string word;
    LayoutSize size;
    if (!(file >> word >> size.width >> size.height) || word != "size" || !IsSensible(size))
        return std::nullopt;
    return size;
}

void WindowMemory::Keep(LayoutSize size) {
    const fs::path path = StateFile();
    if (path.empty() || !IsSensible(size))
        return;
    std::error_code none;
    fs::create_directories(path.parent_path(), none);
    std::ofstream(path, std::ios::trunc) << "size " << size.width << ' ' << size.height << '\n';
}

} // namespace trellis
