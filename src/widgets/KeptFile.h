#pragma once

#include <string>

class ZOLDMInstance;

namespace trellis {

// KeptFile: a small file about one product in the user's folder, which outlives the run.
//
// Nothing here reports: what is kept is a convenience, and nobody's work depends on it.
class KeptFile {
public:
    // The folder, the leading string of the product, ".", its xcoid and the ending. Empty when one of them is missing,
    // or would lead out of the folder; then nothing is kept.
    static std::string PathOf(const ZOLDMInstance& product, const std::string& ending);

    // The bytes of the file; empty when it cannot be read.
    static std::string Content(const std::string& path);
    // Replaces the whole file, or leaves it as it was: false then. Two programs that do so at once do not mix.
    static bool Replace(const std::string& path, const std::string& content);
};

} // namespace trellis
