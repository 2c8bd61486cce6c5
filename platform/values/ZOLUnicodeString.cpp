#include "values/ZOLUnicodeString.h"

#include <unicode/locid.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace {

// Bytes of the code point that begins at `at`: 1 to 4; an invalid byte stands alone.
std::size_t StepAt(const std::string& bytes, std::size_t at) {
    const auto* data = reinterpret_cast<const std::uint8_t*>(bytes.data());
    const auto size = static_cast<std::int32_t>(bytes.size());
    auto next = static_cast<std::int32_t>(at);
    UChar32 code = 0;
    U8_NEXT(data, next, size, code);
    return code < 0 ? 1 : static_cast<std::size_t>(next) - at;
}

// Byte offset of a code point, or the size of the text when it has fewer.
std::size_t OffsetOf(const std::string& bytes, int position) {
    std::size_t at = 0;
    for (; position > 0 && at < bytes.size(); --position)
        at += StepAt(bytes, at);
    return at;
}

int PositionOf(const std::string& bytes, std::size_t offset) {
    int position = 0;
    for (std::size_t at = 0; at < offset; ++position)
        at += StepAt(bytes, at);
    return position;
}

} // namespace

int ZOLUnicodeString::GetLengthInChar() const {
    return PositionOf(_bytes, _bytes.size());
}

ZOLUnicodeString ZOLUnicodeString::SubString(int start, int length) const {
    if (start < 0) {
        length = length < 0 ? length : std::max(0, length + start);
        start = 0;
    }
    const std::size_t from = OffsetOf(_bytes, start);
    const std::string rest = _bytes.substr(from);
    return length < 0 ? ZOLUnicodeString(rest) : ZOLUnicodeString(rest.substr(0, OffsetOf(rest, length)));
}

int ZOLUnicodeString::SearchSubString(const ZOLUnicodeString& what, int start, int direction) const {
    if (what.IsEmpty())
        return -1;
    std::size_t found = std::string::npos;
    if (direction >= 0)
        found = _bytes.find(what._bytes, OffsetOf(_bytes, start));
    else
        found = _bytes.rfind(what._bytes, start < 0 ? std::string::npos : OffsetOf(_bytes, start));
    return found == std::string::npos ? -1 : PositionOf(_bytes, found);
}

void ZOLUnicodeString::ToUpper() {
    std::string upper;
    upper.reserve(_bytes.size());
    for (std::size_t at = 0; at < _bytes.size();) {
        // Runs of valid code points go through the library at once; an invalid byte is copied as it is.
        std::size_t end = at;
        while (end < _bytes.size()) {
            const std::size_t step = StepAt(_bytes, end);
            if (step == 1 && static_cast<unsigned char>(_bytes[end]) >= 0x80)
                break;
            end += step;
        }
        icu::UnicodeString::fromUTF8(
            icu::StringPiece(_bytes.data() + at, static_cast<std::int32_t>(end - at)))
            .toUpper(icu::Locale::getRoot())
            .toUTF8String(upper);
        if (end < _bytes.size())
            upper += _bytes[end++];
        at = end;
    }
    _bytes = std::move(upper);
}

void ZOLUnicodeString::Strip() {
    const std::size_t first = _bytes.find_first_not_of(' ');
    if (first == std::string::npos)
        return _bytes.clear();
    _bytes = _bytes.substr(first, _bytes.find_last_not_of(' ') - first + 1);
}

void ZOLUnicodeString::Replace(const ZOLUnicodeString& from, const ZOLUnicodeString& to) {
    if (from.IsEmpty())
        return;
    const std::string what = from._bytes;
    const std::string with = to._bytes;
    for (std::size_t at = _bytes.find(what); at != std::string::npos;
         at = _bytes.find(what, at + with.size()))
        _bytes.replace(at, what.size(), with);
}

int ZOLUnicodeString::ConvertToNum(int* number, const char* format) const {
    if (std::string_view(format) != "%d")
        return 0;
    char* end = nullptr;
    errno = 0;
    const long value = std::strtol(_bytes.c_str(), &end, 10);
    if (end == _bytes.c_str() || errno == ERANGE || value < std::numeric_limits<int>::min() ||
        value > std::numeric_limits<int>::max())
        return 0;
    *number = static_cast<int>(value);
    return 1;
}

ZOLUnicodeString ZOLUnicodeString::FromNumber(int number, const char* format) {
    // Formats are data of callers: only "%d" with digits and a point between is handed to the C library.
    const std::string_view shape(format);
    const bool plain =
        shape.size() >= 2 && shape.size() <= 6 && shape.front() == '%' && shape.back() == 'd' &&
        shape.substr(1, shape.size() - 2).find_first_not_of("0123456789.") == std::string_view::npos;
    if (!plain)
        return std::to_string(number);
    char text[128];
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    std::snprintf(text, sizeof text, format, number);
#pragma GCC diagnostic pop
    return ZOLUnicodeString(text);
}
