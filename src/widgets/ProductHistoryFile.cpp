#include "widgets/ProductHistoryFile.h"

#include "widgets/KeptFile.h"

#include <algorithm>
#include <array>

namespace trellis {

namespace {

// The items of a line as they are read, character by character.
struct ItemsOfLine {
    std::array<std::string, 3> items;
    std::size_t current = 0;

    void Take(char character) {
        if (character != ' ')
            items[current] += character;
        else if (!items[current].empty() && current + 1 < items.size())
            ++current;
    }
    bool AreFilled() const { return !items.back().empty(); }
};

bool IsItem(const ZOLUnicodeString& text) {
    return !text.IsEmpty() && text.Bytes().find_first_of(" \n") == std::string::npos;
}

} // namespace

ZOLUnicodeString ProductHistoryEntry::KeyOf(int place) {
    return ZOLUnicodeString::FromNumber(place, "%0.2d");
}

bool ProductHistoryEntry::IsNumbered() const {
    int place = 0;
    return key.ConvertToNum(&place, "%d") && place > 0 &&
           KeyOf(place).GetLengthInChar() == key.GetLengthInChar();
}

bool ProductHistoryEntry::IsWritable() const {
    return IsItem(key) && IsItem(leadingString) && IsItem(xcoid);
}

ProductHistory ProductHistoryFile::Parse(const std::string& text) {
    ProductHistory entries;
    ItemsOfLine line;
    for (const char character : text) {
        if (character != '\n') {
            line.Take(character);
            continue;
        }
        if (line.AreFilled()) {
            const ZOLUnicodeString key = line.items[0];
            entries.push_back(
                {key.SubString(1, std::max(0, key.GetLengthInChar() - 2)), line.items[1], line.items[2]});
        }
        line = {};
    }
    return entries;
}

std::string ProductHistoryFile::Format(const ProductHistory& entries) {
    ZOLUnicodeString text;
    for (const ProductHistoryEntry& entry : entries)
        if (entry.IsWritable())
            text += ZOLUnicodeString("[") + entry.key + "] " + entry.leadingString + " " + entry.xcoid + "\n";
    return text.Bytes();
}

ProductHistory ProductHistoryFile::GetFileInfo(const std::string& path) {
    return path.empty() ? ProductHistory() : Parse(KeptFile::Content(path));
}

void ProductHistoryFile::PutFileInfo(const std::string& path, const ProductHistory& entries) {
    if (!path.empty())
        KeptFile::Replace(path, Format(entries));
}

} // namespace trellis
