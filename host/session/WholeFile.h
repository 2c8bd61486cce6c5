#pragma once

#include <string>

class ZOLGYRError;

namespace trellis {

// WholeFile: files that a person names and the program writes.
class WholeFile {
public:
    // What stands under the name before is there until the new text is whole. A link is followed, and what is no plain
    // file, such as a terminal, is written straight. 60631 (file, reason) when it cannot be written.
    static bool Write(const std::string& path, const std::string& text, ZOLGYRError& error);
};

} // namespace trellis
