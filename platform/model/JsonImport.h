#pragma once

#include "model/ImportText.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace trellis {

// Hands a JSON parser the text octet by octet and counts the lines that it has taken.
class LineCounter {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    LineCounter(const char* at, int* line) : _at(at), _line(line) {}
    reference operator*() const { return *_at; }
    LineCounter& operator++() {
        if (*_at++ == '\n')
            ++*_line;
        return *this;
    }
    LineCounter operator++(int) {
        LineCounter before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const LineCounter& a, const LineCounter& b) { return a._at == b._at; }
    friend bool operator!=(const LineCounter& a, const LineCounter& b) { return a._at != b._at; }

private:
    const char* _at;
    int* _line;
};

// JsonImport: what the takers of a JSON parser's events have in common: the line they are at, and a text that
// is none. A taker derives from it and is fed by ParseJson.
class JsonImport {
public:
    explicit JsonImport(ImportText::Problems& problems) : _problems(problems) {}

    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception& failure) {
        const std::string text = failure.what();
        const std::size_t words =
            text.find("syntax error"); // before it stands a place, but a place in octets
        Note(60230, {words == std::string::npos ? text : text.substr(words)});
        return false;
    }

protected:
    int Line() const { return _line; }
    void Note(int number, const std::vector<std::string>& parameters = {}) {
        ImportText::Note(_problems, _line, number, parameters);
    }

private:
    template <class Taker>
    friend bool ParseJson(std::string_view text, Taker& taker);

    ImportText::Problems& _problems;
    int _line = 1;
};

// False when the text is no JSON, which is noted.
template <class Taker>
bool ParseJson(std::string_view text, Taker& taker) {
    int* line = &static_cast<JsonImport&>(taker)._line;
    return nlohmann::json::sax_parse(LineCounter(text.data(), line),
                                     LineCounter(text.data() + text.size(), line), &taker);
}

} // namespace trellis
