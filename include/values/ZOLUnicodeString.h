#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLListVal.h"

#include <compare>
#include <functional>
#include <string>
#include <string_view>

// ZOLUnicodeString: a text in UTF-8. Lengths and positions count code points from 0; a byte that is no valid
// UTF-8 counts as one code point and survives every operation unchanged. Texts compare by code point, which is
// also the order of their bytes; the empty text is smallest.
class TRELLIS_API ZOLUnicodeString {
public:
    enum SearchDirection { Backward = -1, Forward = 1 };

    ZOLUnicodeString() = default;
    // A null pointer makes an empty text.
    ZOLUnicodeString(const char* utf8) : _bytes(utf8 ? utf8 : "") {}
    ZOLUnicodeString(std::string utf8) : _bytes(std::move(utf8)) {}
    explicit ZOLUnicodeString(std::string_view utf8) : _bytes(utf8) {}

    int GetLengthInChar() const;
    int GetLengthInByte() const { return static_cast<int>(_bytes.size()); }
    bool IsEmpty() const { return _bytes.empty(); }

    // The code points from `start` on, at most `length` of them. What lies outside the text is left out; a
    // negative length takes all to the end.
    ZOLUnicodeString SubString(int start, int length = -1) const;
    // Position of `what`, or -1 when absent. Forward: the first at or behind `start`; backward: the last that
    // begins at or before `start`, where a negative start means the end. An empty `what` is never found.
    int SearchSubString(const ZOLUnicodeString& what, int start = 0, int direction = Forward) const;

    void Append(const ZOLUnicodeString& text) { _bytes += text._bytes; }
    // Upper case by Unicode, without regard to a language; "ß" becomes "SS". Invalid bytes stay.
    void ToUpper();
    // Takes blanks (U+0020 only) off both ends.
    void Strip();
    // Replaces every `from`, read from left to right, by `to`. An empty `from` changes nothing.
    void Replace(const ZOLUnicodeString& from, const ZOLUnicodeString& to);

    // The bytes, closed by a zero byte; valid until the text changes.
    const char* ConvertToChar() const { return _bytes.c_str(); }
    const std::string& Bytes() const { return _bytes; }
    // Reads a decimal number as sscanf does: "12x" gives 12. 0, with the number untouched, when the text does not
    // begin with one, when it does not fit an int, or when the format is not "%d".
    int ConvertToNum(int* number, const char* format = "%d") const;
    // A number printed by a format with one "%d", such as "%0.2d". Any other format gives the plain number.
    static ZOLUnicodeString FromNumber(int number, const char* format = "%d");

    ZOLUnicodeString& operator+=(const ZOLUnicodeString& text) {
        Append(text);
        return *this;
    }
    friend ZOLUnicodeString operator+(ZOLUnicodeString a, const ZOLUnicodeString& b) {
        a.Append(b);
        return a;
    }
    friend bool operator==(const ZOLUnicodeString&, const ZOLUnicodeString&) = default;
    friend std::strong_ordering operator<=>(const ZOLUnicodeString& a, const ZOLUnicodeString& b) {
        return a._bytes.compare(b._bytes) <=> 0;
    }

private:
    std::string _bytes;
};

template <>
struct std::hash<ZOLUnicodeString> {
    std::size_t operator()(const ZOLUnicodeString& text) const noexcept {
        return std::hash<std::string>{}(text.Bytes());
    }
};

using ZOLListValZOLUnicodeString = ZOLListVal<ZOLUnicodeString>;
