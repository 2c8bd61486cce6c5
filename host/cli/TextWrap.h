#pragma once

#include <string>
#include <vector>

namespace trellis {

// TextWrap: text for people, broken at blanks to the width of the terminal, or to 100 columns elsewhere.
class TextWrap {
public:
    // Each line ends with a line feed. The first stands `first` columns in, those below it `others`. A word that is
    // wider stands alone.
    static std::string Wrapped(const std::string& text, int first, int others);
    // The same of words that are not broken, blanks in them or not.
    static std::string Wrapped(const std::vector<std::string>& words, int first, int others);
};

} // namespace trellis
