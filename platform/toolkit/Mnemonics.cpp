#include "toolkit/Mnemonics.h"

#include <array>
#include <cctype>
#include <string>
#include <utility>

namespace trellis {

namespace {

bool IsAscii(char byte) {
    return !(static_cast<unsigned char>(byte) & 0x80);
}

// Bytes of letters beyond ASCII belong to words, but are no mnemonics.
bool IsInWord(char byte) {
    return !IsAscii(byte) || std::isalnum(static_cast<unsigned char>(byte));
}

class FreeLetters {
public:
    // Takes the first letter of the text that is free; only at the beginning of words, or anywhere. 0 for none.
    char Take(const std::string& text, bool onlyBeginnings) {
        for (std::size_t i = 0; i < text.size(); ++i) {
            const bool isBeginning = i == 0 || !IsInWord(text[i - 1]);
            if (onlyBeginnings && !isBeginning)
                continue;
            if (IsAscii(text[i]) && IsInWord(text[i]) && TakeLetter(text[i]))
                return text[i];
        }
        return 0;
    }

private:
    bool TakeLetter(char letter) {
        bool& isTaken = _isTaken[static_cast<std::size_t>(std::tolower(static_cast<unsigned char>(letter)))];
        return !std::exchange(isTaken, true);
    }

    std::array<bool, 128> _isTaken = {};
};

} // namespace

std::vector<char> Mnemonics(const std::vector<ZOLUnicodeString>& titles) {
    FreeLetters letters;
    std::vector<char> chosen(titles.size(), 0);
    for (const bool onlyBeginnings : {true, false})
        for (std::size_t i = 0; i < titles.size(); ++i)
            if (!chosen[i])
                chosen[i] = letters.Take(titles[i].Bytes(), onlyBeginnings);
    return chosen;
}

} // namespace trellis
