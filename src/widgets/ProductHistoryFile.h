#pragma once

#include "values/ZOLUnicodeString.h"

#include <string>
#include <vector>

namespace trellis {

// ProductHistoryEntry: a line of the history file: a key, and the leading string and xcoid of a product.
//
// A numbered key says which place the product has in the history; any other is the context of a panel, whose last
// product it was.
struct ProductHistoryEntry {
    // The key of a place, with two digits at least.
    static ZOLUnicodeString KeyOf(int place);
    // Whether the key begins with a number above 0 that is as long as the key when it is written again: "01" and
    // "12", not "1" or "007".
    bool IsNumbered() const;
    // Whether its line would be read as it was written: nothing is empty or holds a blank or line feed.
    bool IsWritable() const;

    ZOLUnicodeString key;
    ZOLUnicodeString leadingString;
    ZOLUnicodeString xcoid;
    friend bool operator==(const ProductHistoryEntry&, const ProductHistoryEntry&) = default;
};

using ProductHistory = std::vector<ProductHistoryEntry>;

// ProductHistoryFile: the form in which the products that were used outlive the program: one line for each entry,
// "[key] leading-string xcoid".
class ProductHistoryFile {
public:
    // Any bytes are legal. Blanks before, between and behind the three items do not count; a key loses its first
    // and last character, whatever they are. A line with fewer items, and one without a line feed, does not count.
    static ProductHistory Parse(const std::string& text);
    // Entries that are not writable are left out.
    static std::string Format(const ProductHistory& entries);

    // A file that cannot be read is an empty history.
    static ProductHistory GetFileInfo(const std::string& path);
    // A file that cannot be written stays as it was.
    static void PutFileInfo(const std::string& path, const ProductHistory& entries);
};

} // namespace trellis
