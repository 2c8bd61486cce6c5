#include "service/DictionaryRecord.h"

#include "model/ImportText.h"

#include <algorithm>

namespace trellis {

namespace {

constexpr const char* recordWord = "record";

// Where the fields of each column go; null is the column that tells the kind of the record.
using Columns = std::vector<std::string DictionaryRecord::*>;

Columns ReadHeader(const CsvReader::Row& row, DictionaryFile& file) {
    Columns columns;
    std::vector<std::string> seen;
    for (const std::string& title : row.fields) {
        const auto field = std::ranges::find_if(
            dictionaryFields, [&](const DictionaryField& known) { return title == known.word; });
        const bool isKnown = field != std::end(dictionaryFields);
        if (!isKnown && title != recordWord)
            file.Note(row.line, 60217, {title});
        else if (std::ranges::find(seen, title) != seen.end())
            file.Note(row.line, 60218, {title});
        seen.push_back(title);
        columns.push_back(isKnown ? field->member : nullptr);
    }
    for (const char* needed : {recordWord, "name"})
        if (std::ranges::find(seen, needed) == seen.end())
            file.Note(row.line, 60411, {needed});
    file.tellsDefaults = std::ranges::find(seen, "default") != seen.end();
    return columns;
}

void ReadRecord(const Columns& columns, const CsvReader::Row& row, DictionaryFile& file) {
    if (row.fields.size() != columns.size())
        return file.Note(row.line, 60216,
                         {std::to_string(row.fields.size()), std::to_string(columns.size())});
    DictionaryRecord record;
    record.line = row.line;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const std::string& text = row.fields[i];
        if (columns[i])
            record.*columns[i] = text;
        else if (text == "option")
            record.kind = DictionaryRecord::Kind::Option;
        else if (text != "category")
            return file.Note(row.line, 60410, {text});
    }
    file.records.push_back(std::move(record));
}

} // namespace

DictionaryFile ReadDictionaryCsv(std::string_view text) {
    DictionaryFile file;
    CsvReader reader(text);
    CsvReader::Row row;
    if (!reader.Next(row)) {
        file.Note(0, 60210);
        return file;
    }
    if (!ImportText::CheckRow(row, file.problems))
        return file;
    const Columns columns = ReadHeader(row, file);
    // Under a header that is wrong every row would be, too.
    if (!file.problems.empty())
        return file;
    while (reader.Next(row))
        if (ImportText::CheckRow(row, file.problems))
            ReadRecord(columns, row, file);
    if (file.records.empty() && file.problems.empty())
        file.Note(0, 60210);
    return file;
}

} // namespace trellis
