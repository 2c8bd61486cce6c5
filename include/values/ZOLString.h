#pragma once

#include <functional>
#include <string>
#include <string_view>

// ZOLString: plain bytes, for the names of resources.
class ZOLString {
public:
    ZOLString() = default;
    // A null pointer makes an empty text.
    ZOLString(const char* text) : _bytes(text ? text : "") {}
    ZOLString(std::string text) : _bytes(std::move(text)) {}

    const char* ConvertToChar() const { return _bytes.c_str(); }
    std::string_view View() const { return _bytes; }
    bool IsEmpty() const { return _bytes.empty(); }

    friend bool operator==(const ZOLString&, const ZOLString&) = default;
    friend auto operator<=>(const ZOLString&, const ZOLString&) = default;

private:
    std::string _bytes;
};

template <>
struct std::hash<ZOLString> {
    std::size_t operator()(const ZOLString& text) const noexcept {
        return std::hash<std::string_view>{}(text.View());
    }
};
