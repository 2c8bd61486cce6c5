#include "toolkit/ResourceStore.h"

#include "values/ResourceFolders.h"
#include "values/ZOLGYRError.h"
#include "values/ZOLGYRTrace.h"

#include <X11/Xlib.h>
#include <X11/Xresource.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

namespace trellis {

namespace fs = std::filesystem;

namespace {

using Texts = std::unordered_map<std::string, std::string>;

// A loosely bound key keeps its "*", which no caller asks for: keys are matched exactly, never by X's rules.
std::string KeyText(XrmBindingList bindings, XrmQuarkList quarks) {
    std::string key;
    for (; *quarks != NULLQUARK; ++bindings, ++quarks) {
        if (*bindings == XrmBindLoosely)
            key += '*';
        else if (!key.empty())
            key += '.';
        key += XrmQuarkToString(*quarks);
    }
    return key;
}

extern "C" Bool TakeEntry(XrmDatabase*, XrmBindingList bindings, XrmQuarkList quarks, XrmRepresentation*,
                          XrmValue* value, XPointer data) {
    if (value->addr && value->size > 0) // the size counts the closing zero octet
        (*reinterpret_cast<Texts*>(data))[KeyText(bindings, quarks)] =
            std::string(value->addr, value->size - 1);
    return False;
}

// Nothing for a file that is there but cannot be read.
std::optional<std::string> ReadWhole(const fs::path& path) {
    std::error_code failed;
    if (!fs::is_regular_file(path, failed))
        return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    // An empty file makes the copying fail, not the reading.
    if (!in.is_open() || in.bad() || (content.fail() && fs::file_size(path, failed) > 0))
        return std::nullopt;
    return content.str();
}

void TraceStatus(const std::string& file, const ResourceTexts& read) {
    ZOLGYRError error;
    read.GetStatus(file, error);
    if (error.GetCode() == 0)
        return;
    ZOLUnicodeString message;
    error.GetLongMsg(message);
    ZOLGYRTrace::Note(message.Bytes());
}

std::shared_ptr<const ResourceTexts> Read(const std::string& file, const std::vector<std::string>& folders) {
    auto read = std::make_shared<ResourceTexts>();
    const bool isName = !file.empty() && file.find('/') == std::string::npos && file != "." && file != "..";
    for (const std::string& folder : isName ? folders : std::vector<std::string>()) {
        const fs::path place = fs::path(folder) / file;
        std::error_code failed;
        if (!fs::exists(place, failed) && !failed)
            continue;
        ++read->found;
        if (const std::optional<std::string> content = ReadWhole(place))
            read->texts.merge(ParseResourceTexts(*content)); // merge keeps what is there already
        else
            read->unreadable.push_back(place.string());
    }
    TraceStatus(file, *read);
    return read;
}

} // namespace

Texts ParseResourceTexts(const std::string& content) {
    Texts texts;
    XrmInitialize();
    XrmDatabase database = XrmGetStringDatabase(content.c_str());
    if (!database)
        return texts;
    XrmQuark none[] = {NULLQUARK};
    XrmEnumerateDatabase(database, none, none, XrmEnumAllLevels, TakeEntry,
                         reinterpret_cast<XPointer>(&texts));
    XrmDestroyDatabase(database);
    return texts;
}

ResourceStore& ResourceStore::Current() {
    static ResourceStore store;
    return store;
}

void ResourceTexts::GetStatus(const std::string& file, ZOLGYRError& error) const {
    if (found == 0)
        error.Set(60180, 0, file, 0, nullptr);
    else if (!unreadable.empty())
        error.Set(60181, 0, unreadable.front(), 0, nullptr);
}

std::shared_ptr<const ResourceTexts> ResourceStore::Get(const std::string& file) {
    std::vector<std::string> folders = ResourceFolders::Search();
    if (_folders != folders) {
        _files.clear();
        _folders = std::move(folders);
    }
    std::shared_ptr<const ResourceTexts>& kept = _files[file];
    if (!kept)
        kept = Read(file, _folders);
    return kept;
}

} // namespace trellis
