#pragma once

#include <string>
#include <vector>

class ZOLGYRError;

namespace trellis {

struct ScriptLine {
    int number = 0; // in the file, from 1
    std::string text;
    std::vector<std::string> words; // verb first
};

// ScriptParser: cuts a script into its lines and words. Words stand between blanks; one in double quotes may hold
// blanks, and \" \\ \n for a quote, a backslash and a line feed. Empty lines and lines that begin with # say
// nothing.
class ScriptParser {
public:
    // Lines that cannot be cut are told as 60621 (line, reason) in `problems`.
    static std::vector<ScriptLine> Parse(const std::string& script, std::vector<ZOLGYRError>& problems);
};

} // namespace trellis
