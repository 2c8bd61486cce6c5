#include "model/StructureReaders.h"

#include <algorithm>
#include <map>

namespace trellis {

namespace {

constexpr std::string_view attributePrefix = "attribute:";

// Where the fields of a column go.
struct CsvColumn {
    enum class Kind { Text, Attribute, Record, Ignored };
    Kind kind = Kind::Ignored;
    std::string StructureRecord::*member = nullptr;
    std::string attribute;
};

// Other words for columns, as tables of assemblies use them, and the one that tells nothing of use.
const std::map<std::string, std::string, std::less<>> otherWords = {{"parent_id", "parent"},
                                                                    {"child_id", "child"}};
constexpr const char* ignoredWord = "entity";
constexpr const char* recordWord = "record";

struct CsvHeader {
    std::vector<CsvColumn> columns;
    bool hasRecord = false;
    bool hasLinks = false;
};

bool ColumnOf(const std::string& title, CsvColumn& column) {
    if (title == ignoredWord)
        return true;
    if (title == recordWord) {
        column.kind = CsvColumn::Kind::Record;
        return true;
    }
    if (title.starts_with(attributePrefix) && title.size() > attributePrefix.size()) {
        column.kind = CsvColumn::Kind::Attribute;
        column.attribute = title.substr(attributePrefix.size());
        return true;
    }
    const auto other = otherWords.find(title);
    const std::string& word = other == otherWords.end() ? title : other->second;
    for (const StructureField& field : structureFields)
        if (word == field.word) {
            column.kind = CsvColumn::Kind::Text;
            column.member = field.member;
            return true;
        }
    return false;
}

bool SameColumn(const CsvColumn& a, const CsvColumn& b) {
    return a.kind == b.kind && a.kind != CsvColumn::Kind::Ignored && a.member == b.member &&
           a.attribute == b.attribute;
}

CsvHeader ReadHeader(const CsvReader::Row& row, ImportText::Problems& problems) {
    CsvHeader header;
    bool hasParent = false;
    bool hasChild = false;
    for (const std::string& title : row.fields) {
        CsvColumn column;
        if (!ColumnOf(title, column))
            ImportText::Note(problems, row.line, 60217, {title});
        else if (std::any_of(header.columns.begin(), header.columns.end(),
                             [&](const CsvColumn& other) { return SameColumn(column, other); }))
            ImportText::Note(problems, row.line, 60218, {title});
        header.hasRecord |= column.kind == CsvColumn::Kind::Record;
        hasParent |= column.member == &StructureRecord::parent;
        hasChild |= column.member == &StructureRecord::child;
        header.columns.push_back(std::move(column));
    }
    if (!header.hasRecord && !(hasParent && hasChild))
        ImportText::Note(problems, row.line, 60219);
    return header;
}

void ReadRecord(const CsvHeader& header, const CsvReader::Row& row, StructureFile& file,
                ImportText::Problems& problems) {
    if (row.fields.size() != header.columns.size())
        return ImportText::Note(problems, row.line, 60216,
                                {std::to_string(row.fields.size()), std::to_string(header.columns.size())});
    StructureRecord record;
    record.line = row.line;
    for (std::size_t i = 0; i < row.fields.size(); ++i) {
        const CsvColumn& column = header.columns[i];
        const std::string& text = row.fields[i];
        if (column.kind == CsvColumn::Kind::Text)
            record.*column.member = text;
        else if (column.kind == CsvColumn::Kind::Attribute && !text.empty())
            record.attributes.emplace_back(column.attribute, text);
        else if (column.kind == CsvColumn::Kind::Record && text == "part")
            record.kind = StructureRecord::Kind::Part;
        else if (column.kind == CsvColumn::Kind::Record && text != "link")
            return ImportText::Note(problems, row.line, 60220, {text});
    }
    file.records.push_back(std::move(record));
}

} // namespace

StructureFile ReadStructureCsv(std::string_view text, ImportText::Problems& problems) {
    StructureFile file;
    CsvReader reader(text);
    CsvReader::Row row;
    if (!reader.Next(row)) {
        ImportText::Note(problems, 0, 60210);
        return file;
    }
    if (!ImportText::CheckRow(row, problems))
        return file;
    const CsvHeader header = ReadHeader(row, problems);
    if (!problems.empty()) // no row can be judged then
        return file;
    file.makesParts = !header.hasRecord;
    bool hasRows = false;
    while (reader.Next(row)) {
        hasRows = true;
        if (ImportText::CheckRow(row, problems))
            ReadRecord(header, row, file, problems);
    }
    if (!hasRows)
        ImportText::Note(problems, 0, 60210);
    return file;
}

} // namespace trellis
