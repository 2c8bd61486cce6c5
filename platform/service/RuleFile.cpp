#include "service/RuleFile.h"

#include "service/RuleFileLine.h"
#include "values/ZOLUnicodeString.h"

#include <algorithm>

namespace trellis {

namespace {

constexpr int LineUnknown = 60741;
constexpr int NothingAbove = 60744;

using Kind = RuleFileRule::Kind;

// Reads lines one after the other; rows and descriptions belong to what was read before them.
class RuleFileReader {
public:
    explicit RuleFileReader(RuleFile& file) : _file(file) {}

    void Read(const std::string& source, int number) {
        RuleFileLine line(source, number, _file);
        if (line.AtEnd() || line.Next() == '#')
            return;
        const std::string word = line.Next() == '|' ? "|" : line.Word();
        if (word == "rule")
            TakeRule(line, {Kind::Directive, number, source, {}, {}, {}, {}}, word);
        else if (word == "package")
            TakeRule(line, {Kind::Package, number, source, {}, {}, {}, {}}, word);
        else if (word == "row" || word == "|")
            TakeRow(line, {Kind::Row, number, source, {}, {}, {}, {}}, word);
        else if (word == "matrix")
            TakeMatrix(line, number, source);
        else if (word == "description")
            TakeDescription(line, number, word);
        else
            _file.Note(number, LineUnknown, {word.empty() ? std::string(1, line.Next()) : word});
    }

private:
    enum class Above { Nothing, Rule, Matrix, Row, Faulty };

    // Whether what the word needs stands above. Below a line that is wrong nothing is told: it would be wrong, too.
    bool Belongs(const std::string& word, int number, bool needsMatrix) {
        const bool isThere =
            needsMatrix ? _above == Above::Matrix || _above == Above::Row : _above != Above::Nothing;
        if (!isThere && _above != Above::Faulty)
            _file.Note(number, NothingAbove, {word});
        return isThere && _above != Above::Faulty;
    }

    bool ReadRule(RuleFileLine& line, RuleFileRule& rule, const std::string& word) {
        if (!line.Head(word, &rule.name))
            return false;
        auto text = line.Rest();
        if (text)
            rule.text = std::move(*text);
        return text.has_value();
    }

    void TakeRule(RuleFileLine& line, RuleFileRule rule, const std::string& word) {
        _above = ReadRule(line, rule, word) ? Above::Rule : Above::Faulty;
        if (_above == Above::Rule)
            _file.rules.push_back(std::move(rule));
    }

    void TakeRow(RuleFileLine& line, RuleFileRule row, const std::string& word) {
        if (!Belongs(word, row.line, true))
            return;
        if (word == "|") {
            auto cells = line.Cells(true);
            if (!cells)
                return;
            row.cells = std::move(*cells);
        } else if (!ReadRule(line, row, word)) {
            return;
        }
        _above = Above::Row;
        _file.matrices.back().rows.push_back(std::move(row));
    }

    void TakeMatrix(RuleFileLine& line, int number, const std::string& source) {
        RuleFileMatrix matrix{number, source, {}, {}, {}, {}};
        _above = Above::Faulty;
        if (!line.Head("matrix", &matrix.name))
            return;
        auto columns = line.Cells(false);
        if (!columns)
            return;
        matrix.columns = std::move(*columns);
        _file.matrices.push_back(std::move(matrix));
        _above = Above::Matrix;
    }

    void TakeDescription(RuleFileLine& line, int number, const std::string& word) {
        if (!Belongs(word, number, false) || !line.Head(word, nullptr))
            return;
        const auto text = line.Rest();
        if (!text)
            return;
        if (_above == Above::Rule)
            _file.rules.back().description = text->text;
        else if (_above == Above::Matrix)
            _file.matrices.back().description = text->text;
        else
            _file.matrices.back().rows.back().description = text->text;
    }

    RuleFile& _file;
    Above _above = Above::Nothing;
};

// The text with backslashes, so that it stands on one line and keeps its ends.
std::string Escaped(const std::string& text) {
    std::string written;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isEnd = i == 0 || i + 1 == text.size();
        switch (text[i]) {
        case '\n':
            written += "\\n";
            break;
        case '\r':
            written += "\\r";
            break;
        case '\t':
            written += "\\t";
            break;
        case '\\':
            written += "\\\\";
            break;
        case ' ':
            written += isEnd ? "\\ " : " ";
            break;
        default:
            written += text[i];
        }
    }
    return written;
}

std::string Quoted(const std::string& name) {
    std::string marked = "\"";
    for (const char letter : name)
        marked.append(letter == '"' ? 2 : 1, letter);
    return Escaped(marked + '"');
}

std::string Line(const char* indent, const char* word, const std::string& name, const std::string& text) {
    std::string line = indent;
    line += word;
    if (!name.empty())
        line += ' ' + Quoted(name);
    line += ':';
    return text.empty() ? line + '\n' : line + ' ' + Escaped(text) + '\n';
}

std::string DescriptionLine(const std::string& text) {
    return text.empty() ? std::string() : Line("    ", "description", {}, text);
}

std::string CellText(const RuleFileText& cell) {
    return cell.text.empty() ? "-" : Quoted(cell.text);
}

// How wide each column is, so that the bars of all rows stand under each other.
std::vector<int> Widths(const RuleFileMatrix& matrix) {
    std::vector<int> widths(matrix.columns.size());
    for (const RuleFileRule& row : matrix.rows)
        for (std::size_t i = 0; i < row.cells.size() && i < widths.size(); ++i)
            widths[i] = std::max(widths[i], ZOLUnicodeString(CellText(row.cells[i])).GetLengthInChar());
    return widths;
}

std::string RowLine(const RuleFileRule& row, const std::vector<int>& widths) {
    std::string line = "    |";
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        const std::string cell = CellText(row.cells[i]);
        const int missing = widths[i] - ZOLUnicodeString(cell).GetLengthInChar();
        line += ' ' + cell + std::string(static_cast<std::size_t>(missing), ' ') + " |";
    }
    return line + '\n';
}

std::string MatrixText(const RuleFileMatrix& matrix) {
    std::string text = "matrix " + Quoted(matrix.name) + ':';
    for (std::size_t i = 0; i < matrix.columns.size(); ++i)
        text += (i == 0 ? " " : " | ") + Quoted(matrix.columns[i].text);
    text += '\n' + DescriptionLine(matrix.description);
    const std::vector<int> widths = Widths(matrix);
    for (const RuleFileRule& row : matrix.rows) {
        text += row.cells.empty() ? Line("    ", "row", row.name, row.text.text) : RowLine(row, widths);
        text += DescriptionLine(row.description);
    }
    return text;
}

} // namespace

void RuleFile::Note(int line, int number, const std::vector<std::string>& parameters) {
    problems.push_back(ImportProblem::Of(line, number, parameters));
}

std::size_t RuleFile::PlaceInLine(const std::string& source, const RuleFileText& part, std::size_t at) {
    std::size_t place = part.at;
    for (std::size_t plain = 0; plain < at && place < source.size(); ++plain)
        place += source[place] == '\\' ? 2 : 1;
    return std::min(place, source.size());
}

RuleFile RuleFile::Read(std::string_view text) {
    RuleFile file;
    RuleFileReader reader(file);
    int number = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        reader.Read(std::string(line), ++number);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return file;
}

std::string RuleFile::Text() const {
    std::string text;
    for (const RuleFileRule& rule : rules)
        text += Line("", rule.kind == Kind::Package ? "package" : "rule", rule.name, rule.text.text) +
                DescriptionLine(rule.description);
    for (const RuleFileMatrix& matrix : matrices)
        text += (text.empty() ? "" : "\n") + MatrixText(matrix);
    return text;
}

} // namespace trellis
