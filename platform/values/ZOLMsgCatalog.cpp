#include "values/ZOLMsgCatalog.h"

#include "values/ResourceFolders.h"
#include "values/ZOLGYRTrace.h"

#include <fstream>
#include <map>
#include <unordered_map>
#include <utility>
#include <vector>

struct ZOLMsgCatalog::Texts {
    std::unordered_map<std::string, ZOLUnicodeString> byKey;
};

namespace {

std::string WithLineFeeds(std::string text) {
    for (std::size_t at = text.find("\\n"); at != std::string::npos; at = text.find("\\n", at + 1))
        text.replace(at, 2, "\n");
    return text;
}

// The texts of a key in the file that is found first stand.
void Read(const std::string& path, ZOLMsgCatalog::Texts& texts) {
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        const std::size_t blank = line.find(' ');
        if (line.empty() || line.front() == '#' || blank == std::string::npos)
            continue;
        texts.byKey.emplace(line.substr(0, blank), WithLineFeeds(line.substr(blank + 1)));
    }
}

// Catalogues are kept with the folders they came from: those may change with the language, the files do not while
// the process runs.
std::shared_ptr<const ZOLMsgCatalog::Texts> Open(const std::string& name) {
    static std::map<std::pair<std::string, std::vector<std::string>>,
                    std::shared_ptr<const ZOLMsgCatalog::Texts>>
        open;
    const std::vector<std::string> files = trellis::ResourceFolders::FindAll(name);
    auto& texts = open[{name, files}];
    if (texts)
        return texts;
    if (files.empty())
        ZOLGYRTrace::Note("message catalogue " + name + " not found");
    const auto read = std::make_shared<ZOLMsgCatalog::Texts>();
    for (const std::string& file : files)
        Read(file, *read);
    return texts = read;
}

} // namespace

ZOLMsgCatalog::ZOLMsgCatalog(const ZOLUnicodeString& name) : _texts(Open(name.Bytes())) {}

ZOLMsgCatalog::~ZOLMsgCatalog() = default;

ZOLUnicodeString ZOLMsgCatalog::GetMsg(const ZOLUnicodeString& key) const {
    const auto found = _texts->byKey.find(key.Bytes());
    return found == _texts->byKey.end() ? ZOLUnicodeString() : found->second;
}

int ZOLMsgCatalog::HasMsg(const ZOLUnicodeString& key) const {
    return _texts->byKey.contains(key.Bytes()) ? 1 : 0;
}
