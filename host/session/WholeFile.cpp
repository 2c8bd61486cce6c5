#include "session/WholeFile.h"

#include "values/ZOLGYRError.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace trellis {

namespace {

constexpr int NotWritten = 60631;

bool WriteTo(const std::string& path, const std::string& text) {
    errno = 0;
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << text;
    file.close();
    return file.good();
}

} // namespace

bool WholeFile::Write(const std::string& path, const std::string& text, ZOLGYRError& error) {
    std::error_code failure;
    const bool isPlain =
        !std::filesystem::exists(path, failure) ||
        (std::filesystem::is_regular_file(path, failure) && !std::filesystem::is_symlink(path, failure));
    const std::string written = isPlain ? path + ".new-" + std::to_string(getpid()) : path;
    if (WriteTo(written, text) && (!isPlain || std::rename(written.c_str(), path.c_str()) == 0))
        return true;
    error.Set(NotWritten, {path, std::strerror(errno)});
    if (isPlain)
        std::filesystem::remove(written, failure);
    return false;
}

} // namespace trellis
