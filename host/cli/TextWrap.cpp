#include "cli/TextWrap.h"

#include "values/ZOLUnicodeString.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <sstream>

namespace trellis {

namespace {

constexpr int NarrowestWidth = 40;
constexpr int WidthWithoutTerminal = 100;

int OutputWidth() {
    winsize size{};
    if (isatty(STDOUT_FILENO) == 0 || ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0)
        return WidthWithoutTerminal;
    return std::max<int>(size.ws_col, NarrowestWidth);
}

} // namespace

std::string TextWrap::Wrapped(const std::string& text, int first, int others) {
    std::string line = text;
    std::ranges::replace_if(
        line, [](char letter) { return letter == '\n' || letter == '\r' || letter == '\t'; }, ' ');
    std::istringstream stream(line);
    std::vector<std::string> words;
    for (std::string word; std::getline(stream, word, ' ');)
        words.push_back(word);
    return Wrapped(words, first, others);
}

std::string TextWrap::Wrapped(const std::vector<std::string>& words, int first, int others) {
    const int width = OutputWidth();
    std::string wrapped(static_cast<std::size_t>(first), ' ');
    int column = first;
    for (const std::string& word : words) {
        const int length = ZOLUnicodeString(word).GetLengthInChar();
        const bool isFirst = &word == &words.front();
        if (!isFirst && column + 1 + length > width) {
            wrapped += '\n' + std::string(static_cast<std::size_t>(others), ' ');
            column = others;
        } else if (!isFirst) {
            wrapped += ' ';
            ++column;
        }
        wrapped += word;
        column += length;
    }
    return wrapped + '\n';
}

} // namespace trellis
