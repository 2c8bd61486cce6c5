#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace trellis::test {

// TemporaryFolder: a folder of its own for one test, removed with it.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "trellis-XXXXXX").string();
        if (!mkdtemp(pattern.data()))
            std::abort();
        _path = pattern;
    }
    ~TemporaryFolder() {
        std::error_code none;
        std::filesystem::permissions(_path, std::filesystem::perms::owner_all, none);
        std::filesystem::remove_all(_path, none);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string Path(const std::string& name = "") const {
        return (std::filesystem::path(_path) / name).string();
    }
    // Writes a file, with the folders above it, and gives its path.
    std::string Write(const std::string& name, const std::string& content) const {
        const std::filesystem::path file = std::filesystem::path(_path) / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << content;
        return file.string();
    }
    static std::string Read(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    std::string _path;
};

} // namespace trellis::test
