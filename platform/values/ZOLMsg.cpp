#include "values/ZOLMsg.h"

#include <set>

namespace {

// One pass over a template; knows which parameters were named anywhere.
class MessageWriter {
public:
    MessageWriter(const std::string& text, const std::vector<ZOLUnicodeString>& parameters)
        : _text(text), _parameters(parameters) {}

    std::string Write() {
        std::string result;
        for (_at = 0; _at < _text.size();)
            result += _text[_at] == '{' ? Segment() : Piece().first;
        for (std::size_t i = 0, appended = 0; i < _parameters.size(); ++i)
            if (!_named.contains(i) && !_parameters[i].IsEmpty())
                result += (appended++ == 0 ? ": " : ", ") + _parameters[i].Bytes();
        return result;
    }

private:
    // The text up to the closing brace, or nothing when a parameter in it is missing.
    std::string Segment() {
        std::string result;
        bool complete = true;
        for (++_at; _at < _text.size() && _text[_at] != '}';) {
            const auto [piece, present] = Piece();
            result += piece;
            complete = complete && present;
        }
        ++_at;
        return complete ? result : std::string();
    }

    // The next character, or the parameter in its place; false when that parameter is missing.
    std::pair<std::string, bool> Piece() {
        const char current = _text[_at++];
        if (current != '%' || _at == _text.size())
            return {std::string(1, current), true};
        const char next = _text[_at];
        if (next == '%') {
            ++_at;
            return {"%", true};
        }
        if (next < '1' || next > '9')
            return {"%", true};
        ++_at;
        const auto index = static_cast<std::size_t>(next - '1');
        _named.insert(index);
        if (index >= _parameters.size())
            return {"", false};
        return {_parameters[index].Bytes(), true};
    }

    const std::string& _text;
    const std::vector<ZOLUnicodeString>& _parameters;
    std::size_t _at = 0;
    std::set<std::size_t> _named;
};

} // namespace

ZOLUnicodeString ZOLMsg::BuildMessage(const ZOLUnicodeString& text,
                                      const std::vector<ZOLUnicodeString>& parameters) {
    return MessageWriter(text.Bytes(), parameters).Write();
}
