#include "widgets/KeptFile.h"

#include "model/ZOLDMInstance.h"
#include "model/ZOLDMTools.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace trellis {

namespace {

bool IsPlainName(const ZOLUnicodeString& text) {
    using namespace std::string_view_literals;
    return !text.IsEmpty() && text.Bytes().find_first_of("/\0"sv) == std::string::npos;
}

bool WriteDraft(int file, const std::string& content) {
    std::FILE* stream = fdopen(file, "wb");
    if (!stream) {
        close(file);
        return false;
    }
    const bool isWritten = std::fwrite(content.data(), 1, content.size(), stream) == content.size() &&
                           std::fflush(stream) == 0 && fsync(file) == 0;
    return std::fclose(stream) == 0 && isWritten;
}

} // namespace

std::string KeptFile::PathOf(const ZOLDMInstance& product, const std::string& ending) {
    const ZOLUnicodeString database = product.GetLeadingString();
    const ZOLUnicodeString part = product.GetXCoid();
    if (!IsPlainName(database) || !IsPlainName(part))
        return {};
    const ZOLUnicodeString folder = ZOLDMTools::ZOLDMDefaultDirectory();
    return folder.IsEmpty() ? std::string() : (folder + database + "." + part).Bytes() + ending;
}

std::string KeptFile::Content(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    file.peek(); // a folder opens, but its first read fails
    return file ? std::string(std::istreambuf_iterator<char>(file), {}) : std::string();
}

bool KeptFile::Replace(const std::string& path, const std::string& content) {
    std::string draft = path + ".XXXXXX";
    const int file = mkstemp(draft.data());
    if (file < 0)
        return false;
    if (WriteDraft(file, content) && std::rename(draft.c_str(), path.c_str()) == 0)
        return true;
    std::remove(draft.c_str());
    return false;
}

} // namespace trellis
