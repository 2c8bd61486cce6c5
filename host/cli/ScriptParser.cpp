#include "cli/ScriptParser.h"

#include "values/ZOLGYRError.h"

#include <optional>
#include <sstream>

namespace trellis {

namespace {

constexpr int LineNotUnderstood = 60621;

// Reads the words of one line; the reason is set when it cannot be read.
class WordReader {
public:
    explicit WordReader(const std::string& line) : _line(line) {}

    std::vector<std::string> Read() {
        std::vector<std::string> words;
        while (SkipBlanks() && !_reason)
            words.push_back(_line[_at] == '"' ? Quoted() : Plain());
        return words;
    }
    const std::optional<std::string>& Reason() const { return _reason; }

private:
    static bool IsBlank(char letter) { return letter == ' ' || letter == '\t' || letter == '\r'; }

    bool SkipBlanks() {
        while (_at < _line.size() && IsBlank(_line[_at]))
            ++_at;
        return _at < _line.size();
    }

    std::string Plain() {
        const std::size_t begin = _at;
        while (_at < _line.size() && !IsBlank(_line[_at]))
            ++_at;
        return _line.substr(begin, _at - begin);
    }

    std::string Quoted() {
        std::string word;
        for (++_at; _at < _line.size(); ++_at) {
            if (_line[_at] == '"') {
                ++_at;
                return word;
            }
            word += _line[_at] == '\\' ? Escaped() : _line[_at];
        }
        _reason = "a quote is not closed";
        return word;
    }

    char Escaped() {
        if (++_at < _line.size() && _line[_at] == 'n')
            return '\n';
        if (_at < _line.size() && (_line[_at] == '"' || _line[_at] == '\\'))
            return _line[_at];
        _reason = "behind a backslash only n, a quote or a backslash may stand";
        return '\0';
    }

    const std::string& _line;
    std::size_t _at = 0;
    std::optional<std::string> _reason;
};

} // namespace

std::vector<ScriptLine> ScriptParser::Parse(const std::string& script, std::vector<ZOLGYRError>& problems) {
    std::vector<ScriptLine> lines;
    std::istringstream stream(script);
    int number = 0;
    for (std::string text; std::getline(stream, text);) {
        ++number;
        WordReader reader(text);
        std::vector<std::string> words = reader.Read();
        if (words.empty() || words.front().starts_with('#'))
            continue;
        if (reader.Reason()) {
            ZOLGYRError problem;
            problem.Set(LineNotUnderstood, 0, {std::to_string(number), *reader.Reason()});
            problems.push_back(problem);
            continue;
        }
        lines.push_back(ScriptLine{number, text, std::move(words)});
    }
    return lines;
}

} // namespace trellis
