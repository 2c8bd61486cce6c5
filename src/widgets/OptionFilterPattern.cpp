#include "widgets/OptionFilterPattern.h"

#include <algorithm>

namespace trellis {

OptionFilterPattern::OptionFilterPattern(ZOLUnicodeString text) : _text(std::move(text)) {
    _text.Strip();
    const std::string& bytes = _text.Bytes();
    _hasStar = bytes.find('*') != std::string::npos;
    _beginsWithStar = _hasStar && bytes.front() == '*';
    for (std::size_t begin = 0; _hasStar && begin < bytes.size();) {
        const std::size_t end = std::min(bytes.find('*', begin), bytes.size());
        if (end > begin)
            _pieces.push_back(bytes.substr(begin, end - begin));
        begin = end + 1;
    }
}

bool OptionFilterPattern::Fits(const ZOLUnicodeString& value) const {
    return _hasStar ? FitsPieces(value.Bytes()) : value == _text;
}

// The first place of each piece is taken, also of the first one behind a leading "*": a value that begins
// with it does not fit, though the piece may come again later.
bool OptionFilterPattern::FitsPieces(const std::string& value) const {
    std::size_t rest = 0;
    for (std::size_t i = 0; i < _pieces.size(); ++i) {
        const std::size_t found = value.find(_pieces[i], rest);
        if (found == std::string::npos)
            return false;
        if (i == 0 && (found == 0) == _beginsWithStar)
            return false;
        rest = found + _pieces[i].size();
    }
    return true;
}

} // namespace trellis
