#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace trellis {

// CsvReader: the rows of a text in comma separated form: fields may stand in double quotes, inside which a quote is
// doubled and commas and line feeds are plain. Lines end with a line feed, with or without a carriage return before
// it; empty lines are passed over. It copes with any octets.
class CsvReader {
public:
    enum class Fault { None, UnclosedQuote, StrayQuote, LongField };

    struct Row {
        int line = 0; // where it begins, from 1
        std::vector<std::string> fields;
        Fault fault = Fault::None; // of this row; the fields up to it are there
    };

    static constexpr std::size_t LongestField = 65536; // in octets

    explicit CsvReader(std::string_view text) : _text(text) {}

    // False at the end. After an unclosed quote nothing follows.
    bool Next(Row& row);

private:
    bool AtEnd() const { return _at >= _text.size(); }
    bool AtLineEnd() const;
    void TakeLineEnd();
    void SkipEmptyLines();
    void ReadField(Row& row);
    void ReadQuoted(Row& row, std::string& field);
    void ReadPlain(Row& row, std::string& field);
    void Append(Row& row, std::string& field, char character);

    std::string_view _text;
    std::size_t _at = 0;
    int _line = 1;
};

} // namespace trellis
