#include "model/CsvReader.h"

namespace trellis {

bool CsvReader::AtLineEnd() const {
    return _text[_at] == '\n' || (_text[_at] == '\r' && _at + 1 < _text.size() && _text[_at + 1] == '\n');
}

void CsvReader::TakeLineEnd() {
    _at += _text[_at] == '\r' ? 2 : 1;
    ++_line;
}

void CsvReader::SkipEmptyLines() {
    while (!AtEnd() && AtLineEnd())
        TakeLineEnd();
}

bool CsvReader::Next(Row& row) {
    SkipEmptyLines();
    if (AtEnd())
        return false;
    row = {};
    row.line = _line;
    for (;;) {
        ReadField(row);
        if (AtEnd())
            return true;
        if (AtLineEnd()) {
            TakeLineEnd();
            return true;
        }
        ++_at; // the comma
    }
}

void CsvReader::ReadField(Row& row) {
    std::string field;
    if (!AtEnd() && _text[_at] == '"')
        ReadQuoted(row, field);
    ReadPlain(row, field);
    row.fields.push_back(std::move(field));
}

void CsvReader::ReadQuoted(Row& row, std::string& field) {
    for (++_at; !AtEnd(); ++_at) {
        if (_text[_at] == '"') {
            if (_at + 1 >= _text.size() || _text[_at + 1] != '"')
                break;
            ++_at;
        }
        if (_text[_at] == '\n')
            ++_line;
        Append(row, field, _text[_at]);
    }
    if (AtEnd()) {
        row.fault = Fault::UnclosedQuote;
        return;
    }
    ++_at; // the closing quote
    if (!AtEnd() && _text[_at] != ',' && !AtLineEnd())
        row.fault = Fault::StrayQuote;
}

void CsvReader::ReadPlain(Row& row, std::string& field) {
    for (; !AtEnd() && _text[_at] != ',' && !AtLineEnd(); ++_at) {
        if (_text[_at] == '"' && row.fault == Fault::None)
            row.fault = Fault::StrayQuote;
        Append(row, field, _text[_at]);
    }
}

void CsvReader::Append(Row& row, std::string& field, char character) {
    if (field.size() < LongestField)
        field += character;
    else if (row.fault == Fault::None)
        row.fault = Fault::LongField;
}

} // namespace trellis
