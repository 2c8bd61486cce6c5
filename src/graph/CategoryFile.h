#pragma once

#include "values/ZOLListVal.h"
#include "values/ZOLUnicodeString.h"

#include <string>

class ZOLDMInstance;

namespace trellis {

// CategoryFile: which categories a user keeps in the graph of a product, one file for each product in the user's
// folder. One line for each category: "0 " (hidden) or "1 " (shown), then its name to the end of the line.
//
// Nothing here reports: a file that cannot be read hides nothing, one that cannot be written stays as it was.
class CategoryFile {
public:
    // Empty when the product cannot be told from others; then nothing is read or written.
    static std::string PathOf(const ZOLDMInstance& product);

    // Replaces the file as a whole, the hidden categories first. A name that holds a line feed is left out: its
    // category is shown next time.
    static void Write(const std::string& path, const ZOLListValZOLUnicodeString& shown,
                      const ZOLListValZOLUnicodeString& hidden);
    // The names of the hidden categories.
    //
    // Of a line, the first 0 or 1 is the mark wherever it stands; blanks count once the name has begun, also at its
    // end. A line without name or mark, and a last line without a line feed, do not count.
    static ZOLListValZOLUnicodeString ReadHidden(const std::string& path);
};

} // namespace trellis
